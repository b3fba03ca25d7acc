#pragma once

#include "app/application.h"
#include "kinship/path_names.h"

namespace swiftroll::modKinship {

/// The search for all kinship paths between two individuals, and what the last one found.
class Search {
  public:
    explicit Search(Application& app);

    /// The two individuals, first name and surname in capitals, and the titles made of them.
    Text sKinshipFrom, sKinshipTo, sKinshipPair, sKinshipTitle;
    /// Their identifiers.
    Text sKinshipFromId, sKinshipToId;
    /// The titles of two names.
    static Text PairOf(TextView sFrom, TextView sTo);
    static Text TitleOf(TextView sPair);
    /// Names the pair of two rows of lvwIn. @throws Failure IndexOutOfRange
    void SetPair(std::int32_t lFrom, std::int32_t lTo);

    /// What the paths are called, of which `lvwPaths` has a row each.
    PathNames pathNames;

    /// Fills `lvwKinship` with all paths from the `lvwIn` row `lFrom` to the row `lTo` of the island
    /// `sIslandNr`, ordered by the marriages they cross and then by length. `bAbort` ends it, and so does the
    /// row limit of the machine; what was found stays. A failure is reported and ends the search.
    ///
    /// With `nearest` above 0, finds so many paths at most, the first ones of that order, and only those that
    /// the options show; it comes by them without finding the others.
    void FindKinship(TextView sIslandNr, std::int32_t lFrom, std::int32_t lTo, std::int32_t nearest = 0);

    /// Called again and again while a whole search enters individuals and finds paths.
    Event onWalk;

    /// Whether a search is running now.
    bool IsRunning() const { return isRunning_; }
    /// The row limit that ended the last search, 0 when none did.
    std::int32_t RowLimitReached() const { return rowLimitReached_; }

    /// Paths found, and how many of them the options hide.
    std::int64_t lNrLinks = 0, lNrHidden = 0;
    /// Individuals entered by the walk.
    std::int64_t lNrCalls = 0;
    /// Links that the simplification removed.
    std::int32_t lRemovedPaths = 0;

  private:
    class Walker;
    void Walk(TextView sFromId, TextView sToId, std::int32_t nearest, const char*& step);
    void SortPaths();

    Application& app_;
    bool isRunning_ = false;
    std::int32_t rowLimitReached_ = 0;
};

/// The most rows that `lvwKinship` may have on a machine with this memory in bytes, of which so many are
/// still available: half of the memory, and a quarter of what is available, are left to everything else.
std::int32_t RowLimit(std::uint64_t memory, std::uint64_t available);

}  // namespace swiftroll::modKinship
