#pragma once

#include "app/application.h"
#include "kinship/steps.h"

namespace swiftroll::modKinship {

/// How far the copy of the links has come.
struct CopyProgress {
    std::int32_t row = 0;     // of lvwXref, from 1
    std::int32_t copied = 0;  // links
};

/// Fills `lvwXref1` with the links of an island, `lvwXref` being sorted by `IDIndi1`. The text of an island
/// is that of `IslandNr`. False when `bAbort` was set meanwhile; what was copied stays.
/// @throws Failure when the tables were read anew meanwhile
bool AddLvwXref1(Application& app, TextView sIslandNr, CopyProgress& progress);

/// The links of `lvwXref1` as a graph.
struct IslandGraph {
    /// Sorts `lvwXref1` by its first column, so that the links of a person stand side by side in the order in
    /// which they will be tried. Link i is row i + 1 then; later the user may have moved the rows.
    explicit IslandGraph(Application& app);
    /// The node of a person by the identifier in `lvwIn`. @throws Failure KeyNotFound
    std::int32_t NodeOf(TextView sId) const;
    /// The row of a link, wherever it stands. @throws Failure KeyNotFound
    Row RowOfLink(std::int32_t link) const;

    LinkGraph graph;
    std::vector<TextRef> ids;  // identifiers in the store of lvwIn, by node

    /// What each of these links says beside whom it joins.
    std::vector<LinkKind> KindsOf(const std::vector<std::int32_t>& links) const;

  private:
    Application& app_;
    std::vector<RowKey> linkKeys_;
    std::vector<LinkKind> kinds_;
    std::vector<std::int32_t> nodeOfSymbol_;  // by number of the identifier in the store of lvwXref1
};

}  // namespace swiftroll::modKinship
