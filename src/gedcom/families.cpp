#include "gedcom/families.h"

#include "tables/columns.h"
#include "tables/look_ahead.h"
#include "text/edit.h"
#include "text/literal.h"
#include "text/numbers.h"

namespace swiftroll::modReadGedcom {
namespace {

constexpr std::int32_t kStatusStep = 200;

/// The display names of all individuals, made in one pass in the order of `lvwIn`, which does not change
/// meanwhile.
class DisplayNames {
  public:
    explicit DisplayNames(Application& app)
        : in_(app.lvwIn),
          nameless_(app.lvwIn.Store().Intern(", ")),
          names_(static_cast<std::size_t>(in_.Count())) {
        TextStore& store = in_.Store();
        Text text;
        for (std::int32_t i = 1; i <= in_.Count(); ++i) {
            app.ProgressBar1.Show(i, in_.Count());
            const Row person = in_.Item(i);
            text.assign(person.Cell(In::LastName)).append(", ").append(person.Cell(In::FirstName));
            names_[static_cast<std::size_t>(i - 1)] = text == ", " ? nameless_ : store.Put(text);
        }
    }

    /// `LastName`, ", ", `FirstName`, as they stand.
    TextRef AsTheyStand(const Row& person) const {
        return names_[static_cast<std::size_t>(person.Index() - 1)];
    }
    /// The same, but empty for a person without names.
    TextRef Of(const Row& person) const {
        const TextRef name = AsTheyStand(person);
        return name == nameless_ ? TextRef() : name;
    }
    /// The name of the individual of an identifier; empty when there is none.
    TextRef OfId(TextRef id) const {
        const auto person = in_.Find(RowKey(id));
        return person ? Of(*person) : TextRef();
    }

  private:
    Table& in_;
    TextRef nameless_;
    std::vector<TextRef> names_;
};

class FamilyCopier {
  public:
    FamilyCopier(Application& app, Links& links) : app_(app), links_(links), names_(app) {}

    void FillLvwFamily() {
        TextStore& store = app_.lvwFamily.Store();
        const std::int32_t count = app_.lvwFamily.Count();
        for (std::int32_t i = 1; i <= count; ++i) {
            Row family = app_.lvwFamily.Item(i);
            app_.ProgressBar1.Show(i, count);
            Widths& widths = app_.lMaxLenFamily;
            SetCell(family, Family::Husb, names_.OfId(family.Ref(Family::IDHusb)), widths);
            SetCell(family, Family::Wife, names_.OfId(family.Ref(Family::IDWife)), widths);
            SetCell(family, Family::Fams, names_.OfId(family.Ref(Family::IDFams)), widths);
            const TextView husband = family.Cell(Family::Husb), wife = family.Cell(Family::Wife);
            const TextView other = family.Cell(Family::Fams);
            const Text label = Concat(
                {husband.empty() ? other : husband, " x ", husband.empty() || !wife.empty() ? wife : other});
            SetCell(family, Family::Fam, store.Put(label), widths);
        }
    }

    void FillLvwFamilyXref() {
        const std::int32_t count = app_.lvwFamilyXref.Count();
        std::int32_t lFamIndex = 0;
        std::optional<Row> family;
        bool marriageCopied = false;
        for (std::int32_t i = 1; i <= count; ++i) {
            if (i % kStatusStep == 0) ShowStatus(i, count);
            LookAhead(app_.lvwFamilyXref, i, [&](const RowView& soon) {
                app_.lvwIn.Prefetch(RowKey(soon.Ref(FamilyXref::IDIndi)));
            });
            Row member = app_.lvwFamilyXref.Item(i);
            // Both tables stand in the order of the family identifiers; families without members are passed
            // over.
            while (!family || family->Ref(Family::IDFam) != member.Ref(FamilyXref::IDFam)) {
                family = app_.lvwFamily.Item(++lFamIndex);
                marriageCopied = false;
            }
            const TextRef label = family->Ref(Family::Fam);
            member.SetCell(FamilyXref::Family, label);
            const auto person = app_.lvwIn.Find(RowKey(member.Ref(FamilyXref::IDIndi)));
            if (!person) continue;
            SetCell(member, FamilyXref::Family, label, app_.lMaxLenFamilyXref);
            SetCell(member, FamilyXref::Indi, names_.Of(*person), app_.lMaxLenFamilyXref);
            LinkMember(member, *person, *family);
            // The same for every member, so once is enough.
            if (!std::exchange(marriageCopied, true)) FillLvwIn(*family);
            if (app_.bAbort) break;
        }
        ShowStatus(count, count);
    }

    void ShowStatus(std::int32_t done, std::int32_t count) {
        app_.pnlMessage.Set(
            Concat({"Traitement des liens Individus-Famille : "_t, Decimal(done), "/", Decimal(count)}));
        app_.ProgressBar1.Show(done, count);
    }

  private:
    void LinkMember(Row& member, const Row& person, const Row& family) {
        const LinkWords& words = links_.Words();
        const TextRef type = member.Ref(FamilyXref::Type), id = member.Ref(FamilyXref::IDIndi);
        const TextRef husband = family.Ref(Family::IDHusb), wife = family.Ref(Family::IDWife);
        const TextRef husbandName = family.Ref(Family::Husb), wifeName = family.Ref(Family::Wife);
        const TextRef idFam = family.Ref(Family::IDFam), label = family.Ref(Family::Fam);
        if (type == words.Husband && !wife.IsEmpty()) {
            links_.AddXrefXRef(id, words.Husband, wife, husbandName, wifeName, idFam, label);
        } else if (type == words.Wife && !husband.IsEmpty()) {
            links_.AddXrefXRef(id, words.Wife, husband, wifeName, husbandName, idFam, label);
        } else if (type == words.Child) {
            LinkChild(member, person, family);
        }
    }

    // A child is linked to one parent only: the husband, or the wife where there is none.
    void LinkChild(Row& member, const Row& person, const Row& family) {
        const LinkWords& words = links_.Words();
        const TextRef sex = person.Ref(In::Sex);
        const TextRef childType = sex == words.Male     ? words.Son
                                  : sex == words.Female ? words.Daughter
                                                        : words.Child;
        SetCell(member, FamilyXref::Sex, sex, app_.lMaxLenFamilyXref);
        SetCell(member, FamilyXref::Type, childType, app_.lMaxLenFamilyXref);
        const bool hasHusband = !family.Ref(Family::IDHusb).IsEmpty(),
                   hasWife = !family.Ref(Family::IDWife).IsEmpty();
        const TextRef parent = family.Ref(hasHusband ? Family::IDHusb
                                          : hasWife  ? Family::IDWife
                                                     : Family::IDFams);
        const TextRef parentName = family.Ref(hasHusband ? Family::Husb
                                              : hasWife  ? Family::Wife
                                                         : Family::Fams);
        const TextRef wayBack = hasHusband ? words.Father : hasWife ? words.Mother : childType;
        const TextRef child = member.Ref(FamilyXref::IDIndi), childName = names_.AsTheyStand(person);
        const TextRef idFam = family.Ref(Family::IDFam), label = family.Ref(Family::Fam);
        links_.AddXrefXRef(child, childType, parent, childName, parentName, idFam, label);
        links_.AddXrefXRef(parent, wayBack, child, parentName, childName, idFam, label);
    }

    void FillLvwIn(const Row& family) {
        const TextRef husband = family.Ref(Family::IDHusb), wife = family.Ref(Family::IDWife);
        CopyMarriage(husband, family);
        CopyMarriage(wife, family);
        if (husband.IsEmpty() && wife.IsEmpty()) CopyMarriage(family.Ref(Family::IDFams), family);
    }

    void CopyMarriage(TextRef spouse, const Row& family) {
        auto person = app_.lvwIn.Find(RowKey(spouse));
        if (!person) return;
        person->SetCell(In::MarrPlace, family.Ref(Family::MarrPlace));
        person->SetCell(In::MarrMin, family.Ref(Family::MarrMin));
        person->SetCell(In::MarrMax, family.Ref(Family::MarrMax));
    }

    Application& app_;
    Links& links_;
    DisplayNames names_;
};

}  // namespace

void XrefFamily(Application& app, Links& links) {
    app.trail.GuardElse(
        "XrefFamily",
        [&] {
            const std::int32_t count = app.lvwFamilyXref.Count();
            for (std::int32_t i = 1; i <= count && !app.bAbort; ++i) {
                const Row member = app.lvwFamilyXref.Item(i);
                app.ProgressBar1.Show(i, count);
                links.AddFamily(member.Ref(FamilyXref::IDFam), member.Ref(FamilyXref::Type),
                                member.Ref(FamilyXref::IDIndi), TextRef(), 0, 0);
            }
            app.pnlFamilies.Set(Concat({Decimal(app.lvwFamily.Count()), " Famille(s)"_t}));
        },
        [&] {
            app.trail.ErrorLog("XrefFamily");
            throw ProgramEnd{};
        });
}

void CopyFamilyXref2Xref(Application& app, Links& links) {
    const char* phase = "Sort";
    FamilyCopier copier(app, links);
    app.trail.GuardElse(
        "CopyFamilyXref2Xref",
        [&] {
            app.lvwFamily.SortBy(Family::IDFam, 0);
            app.lvwFamilyXref.SortBy(FamilyXref::IDFam, 0);
            app.lvwXref.SetSorted(false);
            phase = "FillLvwFamily";
            copier.FillLvwFamily();
            phase = "FillLvwFamilyXref";
            copier.FillLvwFamilyXref();
        },
        [&] {
            const std::int32_t count = app.lvwFamilyXref.Count();
            app.trail.ErrorLog(Concat({phase, "/", Decimal(count)}));
            copier.ShowStatus(count, count);
        });
}

}  // namespace swiftroll::modReadGedcom
