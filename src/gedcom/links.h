#pragma once

#include <vector>

#include "app/application.h"

namespace swiftroll::modReadGedcom {

/// First and last row, from 1, of the links that leave an individual in a sorted link table; none when the
/// last stands before the first.
struct RowRange {
    std::int32_t first = 1;
    std::int32_t last = 0;
};

/// `colXrefRange`: the rows of each identifier in the column that a link table is sorted by. Identifiers are
/// told apart exactly, as everywhere in the tables.
class XrefRanges {
  public:
    /// No identifier has no rows: nothing links from nobody.
    void Set(TextRef id, RowRange rows) {
        if (id.IsEmpty()) return;
        if (id.Symbol() >= ranges_.size()) ranges_.resize(id.Symbol() + std::size_t{1});
        ranges_[id.Symbol()] = rows;
    }
    RowRange Of(TextRef id) const {
        return !id.IsEmpty() && id.Symbol() < ranges_.size() ? ranges_[id.Symbol()] : RowRange();
    }

  private:
    std::vector<RowRange> ranges_;  // by symbol
};

/// The words of the tables as texts of the store that a read fills, made once a read.
struct LinkWords {
    explicit LinkWords(TextStore& store);
    TextRef Husband, Wife, Child, Son, Daughter, Father, Mother, Male, Female, Famc, Fams, Alia;
};

/// Writes the rows that families and links are made of. All references are interned texts of the read tables'
/// store, so that a pair of identifiers is a key by itself.
class Links {
  public:
    explicit Links(Application& app) : app_(app), words_(app.lvwIn.Store()) {}
    const LinkWords& Words() const { return words_; }

    /// The row of a family and an individual; the last writer of a pair wins.
    void AddFamilyXRef(TextRef sFam, TextRef sType, TextRef sIndi, TextRef sSex);
    /// The row of a family, made when it is new. `sType` "Epoux" or "Epouse" writes the spouse; an empty
    /// place, a year 0 write nothing; 99999 and -1 empty the year. A failure ends the program after its
    /// report.
    Row AddFamily(TextRef sFam, TextRef sType, TextRef sIndi, TextRef sPlace, std::int32_t lMin,
                  std::int32_t lMax);
    /// The link from one individual to another; the last writer of an ordered pair wins. An empty `sId1`
    /// writes nothing but the row itself.
    void AddXrefXRef(TextRef sId1, TextRef sType, TextRef sId2, TextRef sName1, TextRef sName2, TextRef sFam,
                     TextRef sFamLabel);

  private:
    Text Report(std::initializer_list<TextRef> refs) const;
    Application& app_;
    LinkWords words_;
};

/// Sorts a link table by the column `iSortCol` and gives the range of rows of each identifier in it; after a
/// failure, which is reported, as far as it got.
XrefRanges CalcXrefIds(Application& app, Table& table, ColumnId iSortCol);

}  // namespace swiftroll::modReadGedcom
