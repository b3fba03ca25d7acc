#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "shell/frm_main.h"

namespace bench {

/// When a measured search ends: at the first of these.
struct Limits {
    std::size_t paths = 100'000;
    std::size_t rows = 1'000'000;
    double seconds = 20;
};

/// What a walk did. A hash of all paths so far stands for the sequence.
struct WalkFigures {
    double firstPath = 0;  // seconds
    double seconds = 0;
    double longestDelay = 0;  // seconds between two paths
    std::size_t rows = 0;
    std::vector<std::uint64_t> hashes;  // after each path
    bool finished = false;
};

struct SearchFigures {
    std::int32_t people = 0, links = 0;
    double copy = 0, thinning = 0, pruning = 0;  // seconds
    std::size_t removed = 0;
    WalkFigures written;  // our walk, into lvwKinship
    double bytesPerRow = 0;
    WalkFigures walked;  // our walk alone
    double plainThinning = 0;
    bool plainThinningFinished = false;
    bool sameLinks = false;
    WalkFigures plainWalk;
    double Preparation() const { return copy + thinning + pruning; }
};

/// Searches the kinship of two people of the tables of `main` in our way and in the plain one.
SearchFigures MeasureSearch(swiftroll::frmMain& main, const std::string& from, const std::string& to,
                            const Limits& limits);

}  // namespace bench
