// The settings that outlive a run: all controls at exit, and the sets of options that the user names.
#include "shell/column_settings.h"
#include "shell/frm_main.h"
#include "shell/ignoring_failures.h"
#include "shell/list_order.h"
#include "text/edit.h"
#include "text/literal.h"

namespace swiftroll {

using namespace modCommon;

namespace {

constexpr TextView kOrderSubSection = "\\lbOuputPlacesOrder";

/// The order once stood in the set itself, under one of these keys an item.
void DeleteFormerOrder(SettingsStore& store, TextView section) {
    for (const TextView item : {"Décès"_t, "Mariage, Divorce,..."_t, "Naissance"_t}) {
        for (const TextView number : {"001 ", "002 ", "003 "}) {
            IgnoringFailures([&] { store.DeleteSetting(section, Concat({number, item})); });
        }
    }
}

}  // namespace

std::vector<SavedWindow> frmMain::SavedWindows() {
    return {{*this, All()}, {frmFind}, {frmPreview}, {frmKinshipSelect}, {frmSplash}, {frmUpdates}};
}

void frmMain::SaveAllControls() { modCommon::SaveAllControls(*this, SavedWindows(), shownSettings_); }

void frmMain::RestoreSettings() {
    shownSettings_ = modCommon::GetAllControls(*this, SavedWindows());
    cboLoad.SetListIndex(chkProcFamilies.Checked() ? 0 : 1);
    bFormLoading = true;  // no file name follows the format yet
    optOutExtension_Click(optOutExtension.Index());
    bFormLoading = false;
    cmdSaveSwift.Caption = cboSaveSwift.Get();
    if (const Text notice = ports.settings.Notice(); !notice.empty()) pnlMessage.Set(notice);
}

void frmMain::RepeatNotice() {
    const Text notice = ports.settings.Notice(), message = pnlMessage.Get();
    if (notice.empty() || message == notice) return;
    pnlMessage.Set(message.empty() ? notice : Concat({notice, " ", message}));
}

void frmMain::BindParameterSets() {
    parameterSets_.emplace_back(
        *this, cboCells, cmdSaveCells,
        ParameterSet::Parts{.loadName = "cboCells_LostFocus",
                            .saveName = "cmdSaveCells_Click",
                            .section = "OutCells",
                            .fields = {NumberField("Horiz", txtKinH),
                                       NumberField("Vertic", txtKinV),
                                       NumberField("Height", txtKinHeight),
                                       NumberField("Width", txtKinWidth),
                                       ColourField("FColor", cmdColorFemale),
                                       ColourField("MColor", cmdColorMale),
                                       ColourField("UColor", cmdColorUndefined),
                                       FlagField("Landscape", txtKinshipLandscape),
                                       OptionField("optFullName0", optFullName, 0),
                                       OptionField("optFullName1", optFullName, 1),
                                       FlagField("chkIndiID", chkIndiID),
                                       FlagField("chkIndiBirthDate", chkIndiBirthDate),
                                       FlagField("chkIndiBirthPlace", chkIndiBirthPlace),
                                       FlagField("chkIndiDeathDate", chkIndiDeathDate),
                                       FlagField("chkIndiDeathPlace", chkIndiDeathPlace),
                                       FlagField("chkMarrID", chkMarrID),
                                       FlagField("chkMarrDate", chkMarrDate),
                                       FlagField("chkMarrPlace", chkMarrPlace),
                                       CaptionField("lblFont", lblFont),
                                       TextField("txtFont", txtFont)}});

    const auto withTables = [this](const auto& step) {
        return [this, step](const Text& section) {
            for (Table* table : {&lvwIn, &lvwOut, &lvwFamily, &lvwFamilyXref, &lvwXref, &lvwKinship}) {
                step(*table, Concat({section, "\\", table->Name()}));
            }
        };
    };
    parameterSets_.emplace_back(
        *this, cboColumns, cmdSaveColumns,
        ParameterSet::Parts{.loadName = "cboColumns_LostFocus",
                            .saveName = "cmdSaveColumns_Click",
                            .section = "Columns",
                            .loadMore = withTables([this](Table& table, TextView section) {
                                GetColumsSettings(*this, table, section);
                            }),
                            .saveMore = withTables([this](Table& table, TextView section) {
                                SaveColumnsSettings(*this, table, section);
                            })});

    parameterSets_.emplace_back(
        *this, cboOutPlace, cmdSavePlace,
        ParameterSet::Parts{
            .loadName = "cboOutPlace_LostFocus",
            .saveName = "cmdSavePlace_Click",
            .section = "OutPlace",
            .fields = {TextField("Format", txtPlaceFormat), TextField("Separ", txtPlaceSepar),
                       FlagField("Trim", chkTrimSepar)},
            .loadMore =
                [this](const Text& section) {
                    SetListOrder(*this, lbOuputPlacesOrder,
                                 ports.settings.GetAllSettings(Concat({section, kOrderSubSection})));
                },
            .saveMore =
                [this](const Text& section) {
                    const Text below = Concat({section, kOrderSubSection});
                    for (const SettingEntry& entry : ListOrderEntries(lbOuputPlacesOrder, below)) {
                        ports.settings.SaveSetting(entry.section, entry.key, entry.value);
                    }
                },
            .tidy = [this](const Text& section) { DeleteFormerOrder(ports.settings, section); }});
}

}  // namespace swiftroll
