#include "shell/reading.h"

#include "gedcom/places.h"
#include "list/calc_output.h"
#include "list/group_columns.h"
#include "shell/read_notice.h"
#include "shell/settings/column_settings.h"
#include "shell/settings/settings_sections.h"
#include "shell/work_notice.h"
#include "tables/column_icon.h"
#include "text/edit.h"
#include "text/ignoring_failures.h"
#include "text/literal.h"

namespace swiftroll {

Reading::Reading(Application& app, MainCommands& commands, modReadGedcom::Reader& reader,
                 PathDrawing& drawing)
    : app_(app), commands_(commands), reader_(reader), drawing_(drawing) {
    commands_.cmdLoad.Operation = commands_.mnuReadGedCom.Operation = [this] { cmdLoad_Click(); };
    app_.cboLoad.OnClick = [this] { cboLoad_Click(); };
    app_.chkProcFamilies.OnClick = [this] { chkProcFamilies_Click(); };
    commands_.cmdRecalcIn.Operation = [this] { modReadGedcom::SetInDates(app_); };
    commands_.cmdCalcOutput.Operation = commands_.mnuRecalcOut.Operation = [this] { cmdCalcOutput_Click(); };
    reader_.OnFamiliesRead = [this] { EnableFamilyCommands(true); };
}

void Reading::cmdLoad_Click() {
    commands_.cmdLoad.Enabled = commands_.mnuReadGedCom.Enabled = app_.cboLoad.Enabled = false;
    app_.trail.Guard(
        "cmdLoad_Click", [this] { ReadFile(); }, [] { return Text(); });
    commands_.cmdLoad.Enabled = commands_.mnuReadGedCom.Enabled = app_.cboLoad.Enabled = true;
}

void Reading::ReadFile() {
    app_.SetFocus(app_.cboGedIn);
    app_.messageBar.Remove(this);
    for (Panel* panel : {&app_.pnlLines, &app_.pnlIndividuals, &app_.pnlFamilies, &app_.pnlMessage})
        panel->Set("");
    app_.bAbort = app_.bFamiliesRead = false;
    EnableFamilyCommands(false);
    commands_.mnuCheckFile.Enabled = false;
    drawing_.DisableKinshipCommands();
    app_.SSTab1 = Tab::Options;  // no table is seen during the read; the focus stays where it is
    if (reader_.lines.InitGedcom(app_.cboGedIn.Get())) {
        const ScopedFlag lock(app_.bTablesLocked);
        // The boxes of the names hold for one read; they hold for its repetition too.
        const auto readAgain = [this, file = app_.cboGedIn.Get(), inverts = app_.chkInvertNames.Checked(),
                                raises = app_.chkUpperNames.Checked()](CheckBox& option) {
            if (!commands_.cmdLoad.Enabled) return;
            option.SetChecked(true);
            if (inverts) app_.chkInvertNames.SetChecked(true);
            if (raises) app_.chkUpperNames.SetChecked(true);
            app_.cboGedIn.SetText(file);
            commands_.cmdLoad.Click();
        };
        reader_.ProcessGedcom();
        if (!app_.bAbort) TellFindings(readAgain);
        TellRead();
        commands_.mnuCheckFile.Enabled = !app_.bAbort;
    }
    reader_.lines.Close();
    app_.ShowTab(Tab::In);
    if (!app_.bAbort) {
        if (std::exchange(placesGroups_, false)) PlaceGroups();
        const BoxAnswer answer = app_.Box(" - Recalcul"_t,
                                          Concat({"Voulez-vous recalculer la sortie ?"_t, kLineEnd, kLineEnd,
                                                  "(Nécessaire après une lecture, ou lorsque"_t, kLineEnd,
                                                  " les colonnes en sortie ont été permutées)"_t}),
                                          BoxButtons::YesNo, BoxIcon::Question, BoxTopic::Recalculation);
        if (answer == BoxAnswer::Yes) cmdCalcOutput_Click();
    }
    SetAllColumnIcons(app_);
}

/// A newcomer's first list has one row for each name, place and time, and not one for each individual.
void Reading::PlaceGroups() {
    if (!modCalcOut::StandInSchemaOrder(app_.lvwOut)) return;
    const Text section = modCommon::ControlSection(app_, app_.lvwOut.Name());
    IgnoringFailures([&] {
        if (!modCommon::HasColumnPlaces(app_.ports.settings, section)) {
            modCalcOut::PlaceDefaultGroups(app_.lvwOut);
        }
    });
}

void Reading::TellRead() {
    std::vector<Text> made = {Counted(app_.lvwIn.Count(), "individu", "individus")};
    if (app_.bFamiliesRead) made.push_back(Counted(app_.lvwFamily.Count(), "famille", "familles"));
    TellEnd(app_, app_.bAbort ? "Lecture interrompue"_t : "Fichier lu"_t, made, !app_.bAbort);
}

void Reading::TellFindings(const std::function<void(CheckBox& option)>& readAgain) {
    Notice notice = ReadNotice(reader_.findings, {[this, readAgain] { readAgain(app_.chkCalendars); },
                                                  [this, readAgain] { readAgain(app_.chkFallbackEvents); }});
    if (!notice.text.empty()) app_.messageBar.Show(this, std::move(notice));
}

void Reading::cboLoad_Click() {
    commands_.cmdLoad.Caption = app_.cboLoad.Get();
    app_.chkProcFamilies.SetChecked(app_.cboLoad.ListIndex() == 0);
    chkProcFamilies_Click();
}

void Reading::chkProcFamilies_Click() { EnableFamilyCommands(app_.bFamiliesRead); }

void Reading::EnableFamilyCommands(bool enabled) {
    commands_.cmdFindPath.Enabled = commands_.cmdFindPair.Enabled = commands_.cmdSaveGed.Enabled =
        commands_.mnuFindPath.Enabled = enabled;
}

void Reading::cmdCalcOutput_Click() {
    const bool isMade = modCalcOut::CalcOuptut(app_, app_, modPrivacy::Living(app_, app_, app_.ports.clock));
    if (isMade) TellEnd(app_, "Liste calculée"_t, {Counted(app_.lvwOut.Count(), "ligne", "lignes")});
    app_.ShowTab(Tab::Out);
    SetAllColumnIcons(app_);
}

}  // namespace swiftroll
