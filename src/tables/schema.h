#pragma once

#include "tables/death_records.h"
#include "tables/table.h"

namespace swiftroll {

/// The tables, created empty with their columns. Those that a read fills share their texts.
struct TableSet {
    TableSet();

  private:
    std::shared_ptr<StoreGroup> readGroup_ = std::make_shared<StoreGroup>();

  public:
    /// Individuals, one row per INDI record.
    Table lvwIn;
    /// The Relevé-vif: one row per group of individuals.
    Table lvwOut;
    /// Links: one row per ordered pair of linked individuals.
    Table lvwXref;
    /// The links that the kinship search may walk.
    Table lvwXref1;
    /// Families.
    Table lvwFamily;
    /// Members: one row per family and individual.
    Table lvwFamilyXref;
    /// Lines of the kinship paths found.
    Table lvwKinship;
    /// Who of lvwIn has died.
    DeathRecords deaths;

    /// Summaries, which tell anew what the others hold: one row for each kinship path found, and one for each
    /// blood relative of somebody.
    Table lvwPaths, lvwRelatives;

    /// The seven tables of what was read and found, in the order of the log's row counts.
    std::vector<Table*> Logged();
    std::vector<Table*> Summaries() { return {&lvwPaths, &lvwRelatives}; }
    bool IsSummary(const Table* table) const { return table == &lvwPaths || table == &lvwRelatives; }
    /// All of these.
    std::vector<Table*> All();
    /// The tables with header icons: all but lvwXref1.
    std::vector<Table*> Shown();
    /// The table of a name, or nullptr.
    Table* Named(TextView name);
};

}  // namespace swiftroll
