#include "gedcom/links.h"

#include "gedcom/dates.h"
#include "tables/column_numbers.h"
#include "text/edit.h"
#include "text/literal.h"
#include "text/numbers.h"

namespace swiftroll::modReadGedcom {

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
            const RowKey key(sFam, sIndi);
            const auto known = app_.lvwFamilyXref.Find(key);
            Row row = known ? *known : app_.lvwFamilyXref.Add(std::nullopt, key, sFam);
            row.SetCell(FamilyXref::Type, sType);
            row.SetCell(FamilyXref::IDIndi, sIndi);
            row.SetCell(FamilyXref::Sex, sSex);
            SetMaxLen(row, app_.lMaxLenFamilyXref);
        },
        [&] { return Report({sFam, sType, sIndi, sSex}); });
}

Row Links::AddFamily(TextRef sFam, TextRef sType, TextRef sIndi, TextRef sPlace, std::int32_t lMin,
                     std::int32_t lMax) {
    std::optional<Row> row;
    app_.trail.GuardElse(
        "AddFamily",
        [&] {
            TextStore& store = app_.lvwFamily.Store();
            const RowKey key(sFam);
            row = app_.lvwFamily.Find(key);
            if (!row) row = app_.lvwFamily.Add(std::nullopt, key, sFam);
            if (sType == words_.Husband) row->SetCell(Family::IDHusb, sIndi);
            if (sType == words_.Wife) row->SetCell(Family::IDWife, sIndi);
            if (!sPlace.IsEmpty()) row->SetCell(Family::MarrPlace, sPlace);
            const auto year = [&](std::int32_t value, std::int32_t none) {
                return value == none ? TextRef() : store.Intern(Decimal(value));
            };
            if (lMin != 0) row->SetCell(Family::MarrMin, year(lMin, kNoYearMin));
            if (lMax != 0) row->SetCell(Family::MarrMax, year(lMax, kNoYearMax));
            SetMaxLen(*row, app_.lMaxLenFamily);
        },
        [&] {
            app_.trail.ErrorLog(Concat({Report({sFam, sType, sIndi, sPlace}), "/", Decimal(lMin), "/", Decimal(lMax)}));
            throw ProgramEnd{};
        });
    return *row;
}

void Links::AddXrefXRef(TextRef sId1, TextRef sType, TextRef sId2, TextRef sName1, TextRef sName2, TextRef sFam,
                        TextRef sFamLabel) {
    app_.trail.Guard(
        "AddXrefXRef",
        [&] {
            const RowKey key(sId1, sId2);
            const auto known = app_.lvwXref.Find(key);
            Row row = known ? *known : app_.lvwXref.Add(std::nullopt, key, sId1);
            if (sId1.IsEmpty()) return;
            row.SetCell(Xref::Type, sType);
            row.SetCell(Xref::IDIndi2, sId2);
            row.SetCell(Xref::Indi1, sName1);
            row.SetCell(Xref::Indi2, sName2);
            row.SetCell(Xref::IDFamily, sFam);
            row.SetCell(Xref::Family, sFamLabel);
            SetMaxLen(row, app_.lMaxLenXref);
        },
        [&] { return Report({sId1, sType, sId2, sName1, sName2, sFam, sFamLabel}); });
}

std::unique_ptr<XrefRanges> CalcXrefIds(Application& app, Table& table, std::int16_t iSortCol) {
    auto ranges = std::make_unique<XrefRanges>();
    TextView sId;
    std::int32_t lFirst = 0, i = 0;
    app.trail.Guard(
        "CalcXrefIds",
        [&] {
            app.ProgressBar1.Set(0);
            const std::int32_t count = table.Count();
            table.SortBy(iSortCol, 0);
            if (count == 0) return;
            const auto close = [&](std::int32_t last) {
                if (!ranges->Add(sId, {lFirst, last})) throw Failure(FailureKind::DuplicateKey, sId);
            };
            lFirst = 1;
            sId = table.Item(1).Text();
            for (i = 2; i <= count; ++i) {
                const TextView text = table.Item(i).Text();
                if (text.data() == sId.data() || text == sId) continue;
                app.ProgressBar1.Show(i, count);
                close(i - 1);
                lFirst = i;
                sId = text;
            }
            close(count);
        },
        [&] { return Concat({sId, " / ", Decimal(lFirst), " / ", Decimal(i)}); });
    return ranges;
}

}  // namespace swiftroll::modReadGedcom
