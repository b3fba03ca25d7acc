// The commands that read a file and compute from it.
#include "gedcom/places.h"
#include "list/calc_output.h"
#include "shell/frm_main.h"
#include "tables/column_icon.h"
#include "text/edit.h"
#include "text/literal.h"

namespace swiftroll {

void frmMain::BindReading() {
    cmdLoad.Operation = mnuReadGedCom.Operation = [this] { cmdLoad_Click(); };
    cboLoad.OnClick = [this] { cboLoad_Click(); };
    chkProcFamilies.OnClick = [this] { chkProcFamilies_Click(); };
    cmdRecalcIn.Operation = [this] { modReadGedcom::SetInDates(*this); };
    cmdCalcOutput.Operation = mnuRecalcOut.Operation = [this] { cmdCalcOutput_Click(); };
    modReadGedcom.OnFamiliesRead = [this] { EnableFamilyCommands(true); };
}

void frmMain::cmdLoad_Click() {
    cmdLoad.Enabled = mnuReadGedCom.Enabled = cboLoad.Enabled = false;
    trail.Guard(
        "cmdLoad_Click", [this] { ReadFile(); }, [] { return Text(); });
    cmdLoad.Enabled = mnuReadGedCom.Enabled = cboLoad.Enabled = true;
}

void frmMain::ReadFile() {
    SetFocus(cboGedIn);
    for (Panel* panel : {&pnlLines, &pnlIndividuals, &pnlFamilies, &pnlMessage}) panel->Set("");
    bAbort = bFamiliesRead = false;
    EnableFamilyCommands(false);
    DisableKinshipCommands();
    SSTab1 = Tab::Options;  // no table is seen during the read; the focus stays where it is
    if (modReadGedcom.lines.InitGedcom(cboGedIn.Get())) {
        const ScopedFlag lock(bTablesLocked);
        modReadGedcom.ProcessGedcom();
    }
    modReadGedcom.lines.Close();
    ShowTab(Tab::In);
    if (!bAbort) {
        const BoxAnswer answer = Box(" - Recalcul"_t,
                                     Concat({"Voulez-vous recalculer la sortie ?"_t, kLineEnd, kLineEnd,
                                             "(Nécessaire après une lecture, ou lorsque"_t, kLineEnd,
                                             " les colonnes en sortie ont été permutées)"_t}),
                                     BoxButtons::YesNo, BoxIcon::Question, BoxTopic::Recalculation);
        if (answer == BoxAnswer::Yes) cmdCalcOutput_Click();
    }
    SetAllColumnIcons(*this);
}

void frmMain::cboLoad_Click() {
    cmdLoad.Caption = cboLoad.Get();
    chkProcFamilies.SetChecked(cboLoad.ListIndex() == 0);
    chkProcFamilies_Click();
}

void frmMain::chkProcFamilies_Click() { EnableFamilyCommands(bFamiliesRead); }

void frmMain::EnableFamilyCommands(bool enabled) {
    cmdFindPath.Enabled = cmdSaveGed.Enabled = mnuFindPath.Enabled = enabled;
}

void frmMain::DisableKinshipCommands() {
    mnuDrawKinship.Enabled = cmdDrawKinship.Enabled = cboDrawKinship.Enabled = cmdCopyTitle2kinship.Enabled =
        false;
    cmdPrintKinship.Enabled = false;
}

void frmMain::cmdCalcOutput_Click() {
    modCalcOut::CalcOuptut(*this, *this);
    ShowTab(Tab::Out);
    SetAllColumnIcons(*this);
}

}  // namespace swiftroll
