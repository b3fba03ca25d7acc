#include "gedcom/links.h"

#include "gedcom/dates.h"
#include "tables/columns.h"
#include "tables/look_ahead.h"
#include "text/edit.h"
#include "text/literal.h"
#include "text/numbers.h"

namespace swiftroll::modReadGedcom {

namespace {

/// The row of a key; a new one has `text` in its first cell.
Row RowOf(Table& table, RowKey key, TextRef text, Widths& widths) {
    const std::int32_t before = table.Count();
    Row row = table.FindOrAdd(key, text);
    if (table.Count() != before) SetCell(row, ColumnId::OfSection(0), text, widths);
    return row;
}

}  // namespace

LinkWords::LinkWords(TextStore& store)
    : Husband(store.Intern("Epoux"_t)),
      Wife(store.Intern("Epouse"_t)),
      Child(store.Intern("Enfant"_t)),
      Son(store.Intern("Fils"_t)),
      Daughter(store.Intern("Fille"_t)),
      Father(store.Intern("Père"_t)),
      Mother(store.Intern("Mère"_t)),
      Male(store.Intern("M")),
      Female(store.Intern("F")),
      Famc(store.Intern("FAMC")),
      Fams(store.Intern("FAMS")),
      Alia(store.Intern("ALIA")) {}

Text Links::Report(std::initializer_list<TextRef> refs) const {
    Text report;
    for (const TextRef ref : refs) report += Concat({report.empty() ? "" : "/", app_.lvwIn.Store().Get(ref)});
    return report;
}

void Links::AddFamilyXRef(TextRef sFam, TextRef sType, TextRef sIndi, TextRef sSex) {
    app_.trail.Guard(
        "AddFamilyXRef",
        [&] {
            Widths& widths = app_.lMaxLenFamilyXref;
            Row row = RowOf(app_.lvwFamilyXref, RowKey(sFam, sIndi), sFam, widths);
            SetCell(row, FamilyXref::Type, sType, widths);
            SetCell(row, FamilyXref::IDIndi, sIndi, widths);
            SetCell(row, FamilyXref::Sex, sSex, widths);
        },
        [&] {
            return Report({sFam, sType, sIndi, sSex});
        });
}

Row Links::AddFamily(TextRef sFam, TextRef sType, TextRef sIndi, TextRef sPlace, std::int32_t lMin,
                     std::int32_t lMax) {
    std::optional<Row> row;
    app_.trail.GuardElse(
        "AddFamily",
        [&] {
            TextStore& store = app_.lvwFamily.Store();
            Widths& widths = app_.lMaxLenFamily;
            row = RowOf(app_.lvwFamily, RowKey(sFam), sFam, widths);
            if (sType == words_.Husband) SetCell(*row, Family::IDHusb, sIndi, widths);
            if (sType == words_.Wife) SetCell(*row, Family::IDWife, sIndi, widths);
            if (!sPlace.IsEmpty()) SetCell(*row, Family::MarrPlace, sPlace, widths);
            const auto year = [&](std::int32_t value, std::int32_t none) {
                return value == none ? TextRef() : store.Intern(Decimal(value));
            };
            if (lMin != 0) SetCell(*row, Family::MarrMin, year(lMin, kNoYearMin), widths);
            if (lMax != 0) SetCell(*row, Family::MarrMax, year(lMax, kNoYearMax), widths);
        },
        [&] {
            app_.trail.ErrorLog(
                Concat({Report({sFam, sType, sIndi, sPlace}), "/", Decimal(lMin), "/", Decimal(lMax)}));
            throw ProgramEnd{};
        });
    return *row;
}

void Links::AddXrefXRef(TextRef sId1, TextRef sType, TextRef sId2, TextRef sName1, TextRef sName2,
                        TextRef sFam, TextRef sFamLabel) {
    app_.trail.Guard(
        "AddXrefXRef",
        [&] {
            Widths& widths = app_.lMaxLenXref;
            Row row = RowOf(app_.lvwXref, RowKey(sId1, sId2), sId1, widths);
            if (sId1.IsEmpty()) return;
            SetCell(row, Xref::Type, sType, widths);
            SetCell(row, Xref::IDIndi2, sId2, widths);
            SetCell(row, Xref::Indi1, sName1, widths);
            SetCell(row, Xref::Indi2, sName2, widths);
            SetCell(row, Xref::IDFamily, sFam, widths);
            SetCell(row, Xref::Family, sFamLabel, widths);
        },
        [&] {
            return Report({sId1, sType, sId2, sName1, sName2, sFam, sFamLabel});
        });
}

XrefRanges CalcXrefIds(Application& app, Table& table, ColumnId iSortCol) {
    XrefRanges ranges;
    TextRef sId;
    std::int32_t lFirst = 0, i = 0;
    app.trail.Guard(
        "CalcXrefIds",
        [&] {
            app.ProgressBar1.Set(0);
            const std::int32_t count = table.Count();
            table.SortBy(iSortCol, 0);
            if (count == 0) return;
            lFirst = 1;
            sId = table.Item(1).Ref(iSortCol);
            for (i = 2; i <= count; ++i) {
                LookAhead(table, i);
                const TextRef id = table.Item(i).Ref(iSortCol);
                if (id == sId) continue;
                app.ProgressBar1.Show(i, count);
                ranges.Set(sId, {lFirst, i - 1});
                lFirst = i;
                sId = id;
            }
            ranges.Set(sId, {lFirst, count});
        },
        [&] {
            return Concat({table.Store().Get(sId), " / ", Decimal(lFirst), " / ", Decimal(i)});
        });
    return ranges;
}

}  // namespace swiftroll::modReadGedcom
