#pragma once

#include <cstdint>
#include <string>

#include "shell/frm_main.h"

namespace bench {

/// The seconds of a search for the nearest paths of one pair.
struct NearestFigures {
    /// What every search does: the links copied, simplified and rid of dead ends; and these as steps.
    double preparation = 0, steps = 0;
    /// The search with its bound, and the rows of the paths.
    double search = 0;
    std::int64_t paths = 0;
};

/// Searches so many nearest paths between two people of the tables of `main`, into its tables.
NearestFigures MeasureNearest(swiftroll::frmMain& main, const std::string& from, const std::string& to,
                              std::int64_t count);

/// Seconds that the names and degrees of all paths in the tables of `main` take.
double MeasureNames(swiftroll::frmMain& main);

/// Seconds that the relatives of somebody take, of whom `found` tells the number.
double MeasureRelatives(swiftroll::frmMain& main, const std::string& id, std::int32_t& found);

}  // namespace bench
