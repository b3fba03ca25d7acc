#pragma once

#include <array>
#include <vector>

#include "app/application.h"

namespace swiftroll::modReadGedcom {

/// The place without the blanks, commas and semicolons at its end, which programs write for empty
/// jurisdictions.
TextView CleanInPlace(TextView sPlace);

/// What the place options say at one moment.
class PlaceFormatter {
  public:
    explicit PlaceFormatter(const OptionRecord& options);

    /// `txtPlaceFormat` with every "%1" to "%20" replaced by that part of the place, "%0" by all of it and
    /// "%%" by "%", without trailing separators when `chkTrimSepar` is checked.
    Text Take1Place(TextView sPlace) const;
    /// Index (0 birth, 1 death, 2 marriage) of the first place that is not empty in the order of
    /// `lbOuputPlacesOrder`; -1 when all are empty.
    int PreferredPlace(const std::array<bool, 3>& isEmpty) const;

  private:
    Text format_;
    Text separator_;
    bool trim_;
    std::vector<int> order_;
};

/// Computes `Place`, `DateMin` and `DateMax` of every row of `lvwIn` from its events, in the present order,
/// and the widths of its columns.
void SetInDates(Application& app);

}  // namespace swiftroll::modReadGedcom
