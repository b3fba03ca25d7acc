#pragma once

#include <vector>

#include "gedcom/life_events.h"
#include "gedcom/line_reader.h"
#include "gedcom/links.h"

namespace swiftroll::modReadGedcom {

/// The names of a NAME value: given names, surname between slashes, suffix; views of the value.
struct PersonNames {
    TextView sLastName;
    TextView sFirstName;
    TextView sSuffix;
};
PersonNames SplitName(TextView sValue);

/// Turns the lines of one record into rows. The current line is the record's level-0 line before, and the
/// line that ended the record after. One is made for each read.
class RecordReader {
  public:
    /// What the options keep it from is noted in `findings`.
    RecordReader(Application& app, LineReader& lines, Links& links, ReadFindings& findings);

    /// Adds the individual to `lvwIn`, its families to `lvwFamilyXref`, its aliases to `lvwXref`. Gives the
    /// result of the last Read1Line, as the next one does.
    std::int32_t ReadIndividual();
    /// Adds the members to `lvwFamilyXref` and the family to `lvwFamily`.
    std::int32_t ReadFamilyRecord();

  private:
    struct Individual {
        TextRef lastName, firstName, sex;
        LifeEvents events;
        EventFacts* event = nullptr;  // that the lines below belong to
        bool hasDied = false;
    };

    /// Passes over an individual whose identifier another one has.
    std::int32_t SkipRecord();
    void ReadIndividualLine(Individual& individual);
    void ReadEventLine(EventFacts& event);
    void ReadName(Individual& individual);
    void AddAlias(TextRef other);
    void AddMember(TextRef type, TextRef sex);
    void ReadFamilyEvent(TextRef& place, Years& years);
    TextRef UsedXref() const;
    TextRef Place();
    TextRef Sex(TextView sex) const;
    TextRef YearText(std::int32_t year, std::int32_t none);
    /// Tags a row with the byte range of the record that was read.
    void SetRange(Row& row) const;

    Application& app_;
    LineReader& lines_;
    Links& links_;
    TextStore& store_;
    ReadFindings& findings_;
    const bool readsCalendars_, usesStandIns_;
    std::int32_t lNrRows_ = 0;
    TextRef sCurId_;
    TextRef lastPlace_;
    Text sWithSuffix_;
    std::vector<TextRef> yearTexts_;  // by year
};

}  // namespace swiftroll::modReadGedcom
