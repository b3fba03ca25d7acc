#include "shell/frm_relatives.h"

#include <limits>

#include "kinship/relatives_table.h"
#include "list/format_row.h"
#include "list/table_page.h"
#include "shell/ask_file.h"
#include "tables/column_icon.h"
#include "tables/columns.h"
#include "text/edit.h"
#include "text/literal.h"
#include "text/numbers.h"

namespace swiftroll {
namespace {

/// The degree of a text; nothing for a text that is none.
std::optional<std::int32_t> DegreeOf(TextView text) {
    const auto number = ParseDecimal(text);
    if (!number || *number < 1) return std::nullopt;
    return static_cast<std::int32_t>(
        std::min<std::int64_t>(*number, std::numeric_limits<std::int32_t>::max()));
}

/// "Jean DUPONT (@I1@) : 12 parent(s) par le sang", without the name of somebody who lives.
Text TitleOf(const Row& person, std::int32_t count, const modPrivacy::Living& living) {
    const Text name = living.IsLiving(person)
                          ? Text(modPrivacy::kLivingName)
                          : Concat({person.Cell(In::FirstName), " ", UpperCase(person.Cell(In::LastName))});
    return Concat({name, " (", person.Text(), ") : ", Decimal(count), " parent(s) par le sang"_t});
}

/// Writes the relatives of an individual as they stand, without those who live.
void WritePage(Application& app, TextView sIndi, File& file) {
    const modPrivacy::Living living(app, app, app.ports.clock);
    const auto isHidden = [&](const Row& row) { return living.IsLiving(row.Text()); };
    std::int32_t count = 0;
    for (std::int32_t i = 1; i <= app.lvwRelatives.Count(); ++i) {
        if (!isHidden(app.lvwRelatives.Item(i))) ++count;
    }
    modCalcOut::WriteTablePage(file, TitleOf(app.lvwIn.Item(sIndi), count, living), app.lvwRelatives,
                               isHidden);
}

}  // namespace

frmRelatives::frmRelatives(Application& app)
    : Window("frmRelatives"),
      txtDegree(*this,
                {"txtDegree", "Jusqu'au degré civil"_t,
                 "Frères et sœurs : 2, cousins germains : 4, cousins issus de germains : 6."_t},
                Decimal(modKinship::kUsualDegree)),
      cmdList(*this, {"cmdList", "Chercher"}),
      cmdCopy(*this, {"cmdCopy", "Copier tout"}),
      cmdHtml(*this, {"cmdHtml", "Ecrire en HTML..."}),
      cmdClose(*this, {"cmdClose", "Fermer"}),
      lblPerson(*this, {"lblPerson"}),
      app_(app) {
    Caption = "Toute la parenté"_t;
    txtDegree.Accepts = [](TextView text) { return DegreeOf(text).has_value(); };
    txtDegree.OnLostFocus = [this] {
        if (!DegreeOf(txtDegree.Get())) txtDegree.SetText(Decimal(modKinship::kUsualDegree));
    };
    cmdList.Operation = [this] {
        app_.trail.Guard(
            "frmRelatives_List", [this] { FillTable(); }, [this] { return sIndi_; });
    };
    cmdCopy.Operation = [this] { cmdCopy_Click(); };
    cmdHtml.Operation = [this] { cmdHtml_Click(); };
    cmdClose.Operation = [this] { Hide(); };
}

void frmRelatives::Open(TextView sIndi) {
    sIndi_ = sIndi;
    FillTable();
    Show();
}

void frmRelatives::FillTable() {
    const auto person = app_.lvwIn.Find(sIndi_);
    if (!person) {
        app_.lvwRelatives.Clear();
        lblPerson.Caption = "Cette personne n'est pas dans le fichier lu : choisissez-en une autre."_t;
        return;
    }
    const ScopedFlag wait(app_.bWaitCursor);
    // The lists of the window show everybody.
    const modPrivacy::Living nobodyHidden(app_);
    modKinship::ListRelatives(app_, person->Index(),
                              DegreeOf(txtDegree.Get()).value_or(modKinship::kUsualDegree), nobodyHidden);
    SetAllColumnIcons(app_);
    lblPerson.Caption = TitleOf(*person, app_.lvwRelatives.Count(), nobodyHidden);
}

void frmRelatives::cmdCopy_Click() {
    app_.trail.Guard(
        "frmRelatives_Copy",
        [this] {
            const bool bTabs = app_.optTabSpace.Index() == 0;
            const modCalcOut::RowFormatter formatter(app_, app_, app_.lvwRelatives, true);
            if (!formatter.IsReady()) return;
            Text lines = Concat({formatter.FormatHeaders(bTabs), kLineEnd});
            for (std::int32_t i = 1; i <= app_.lvwRelatives.Count(); ++i) {
                lines += Concat({formatter.FormatListItem(app_.lvwRelatives.Item(i), bTabs), kLineEnd});
            }
            app_.ports.clipboard.SetText(lines);
        },
        [this] { return sIndi_; });
}

void frmRelatives::cmdHtml_Click() {
    Text sFile;
    app_.trail.Guard(
        "frmRelatives_Html",
        [&] {
            const Text proposed =
                app_.PathOf(app_.sUserMyDocuments, Concat({"Parenté de "_t, sIndi_, ".html"}));
            if (!AskFile(app_,
                         FileRequestOf(true, "Choisissez le fichier de la parenté à écrire"_t, proposed,
                                       "HTML", "html"),
                         sFile)) {
                return;
            }
            WritePage(app_, sIndi_, *app_.ports.files.Open(sFile, Files::Mode::Write));
        },
        [&] { return sFile; });
}

}  // namespace swiftroll
