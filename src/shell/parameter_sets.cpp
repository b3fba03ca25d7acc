#include "shell/parameter_sets.h"

#include "shell/settings/column_settings.h"
#include "shell/settings/stored_controls.h"
#include "shell/work_notice.h"
#include "text/edit.h"
#include "text/ignoring_failures.h"
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

ParameterSets::ParameterSets(Application& app, SetCommands& commands) : app_(app) {
    const auto tellSaved = [this](const Text& name) { TellSetSaved(app_, name); };
    constexpr auto kAsItIs = ParameterSet::Form::AsItIs, kNumber = ParameterSet::Form::Number;
    sets_.emplace_back(app_, app_.cboCells, commands.cmdSaveCells,
                       ParameterSet::Parts{.loadName = "cboCells_LostFocus",
                                           .saveName = "cmdSaveCells_Click",
                                           .section = "OutCells",
                                           .fields = {{"Horiz", app_.txtKinH, kNumber},
                                                      {"Vertic", app_.txtKinV, kNumber},
                                                      {"Height", app_.txtKinHeight, kNumber},
                                                      {"Width", app_.txtKinWidth, kNumber},
                                                      {"FColor", app_.cmdColorFemale},
                                                      {"MColor", app_.cmdColorMale},
                                                      {"UColor", app_.cmdColorUndefined},
                                                      {"Landscape", app_.txtKinshipLandscape},
                                                      {"optFullName0", app_.optFullName, kAsItIs, 0},
                                                      {"optFullName1", app_.optFullName, kAsItIs, 1},
                                                      {"chkIndiID", app_.chkIndiID},
                                                      {"chkIndiBirthDate", app_.chkIndiBirthDate},
                                                      {"chkIndiBirthPlace", app_.chkIndiBirthPlace},
                                                      {"chkIndiDeathDate", app_.chkIndiDeathDate},
                                                      {"chkIndiDeathPlace", app_.chkIndiDeathPlace},
                                                      {"chkMarrID", app_.chkMarrID},
                                                      {"chkMarrDate", app_.chkMarrDate},
                                                      {"chkMarrPlace", app_.chkMarrPlace},
                                                      {"lblFont", app_.lblFont},
                                                      {"txtFont", app_.txtFont}},
                                           .saved = tellSaved});

    const auto withTables = [this](const auto& step) {
        return [this, step](const Text& section) {
            for (Table* table : {&app_.lvwIn, &app_.lvwOut, &app_.lvwFamily, &app_.lvwFamilyXref,
                                 &app_.lvwXref, &app_.lvwKinship}) {
                step(*table, Concat({section, "\\", table->Name()}));
            }
        };
    };
    sets_.emplace_back(app_, app_.cboColumns, commands.cmdSaveColumns,
                       ParameterSet::Parts{.loadName = "cboColumns_LostFocus",
                                           .saveName = "cmdSaveColumns_Click",
                                           .section = "Columns",
                                           .loadMore = withTables([this](Table& table, TextView section) {
                                               GetColumsSettings(app_, table, section);
                                           }),
                                           .saveMore = withTables([this](Table& table, TextView section) {
                                               SaveColumnsSettings(app_, table, section);
                                           }),
                                           .saved = tellSaved});

    sets_.emplace_back(
        app_, app_.cboOutPlace, commands.cmdSavePlace,
        ParameterSet::Parts{
            .loadName = "cboOutPlace_LostFocus",
            .saveName = "cmdSavePlace_Click",
            .section = "OutPlace",
            .fields = {{"Format", app_.txtPlaceFormat},
                       {"Separ", app_.txtPlaceSepar},
                       {"Trim", app_.chkTrimSepar}},
            .loadMore =
                [this](const Text& section) {
                    RestoreOrder(app_, app_.lbOuputPlacesOrder,
                                 app_.ports.settings.GetAllSettings(Concat({section, kOrderSubSection})));
                },
            .saveMore =
                [this](const Text& section) {
                    const Text below = Concat({section, kOrderSubSection});
                    for (const SettingEntry& entry : EntriesOf(app_.lbOuputPlacesOrder, below)) {
                        app_.ports.settings.SaveSetting(entry.section, entry.key, entry.value);
                    }
                },
            .tidy = [this](const Text& section) { DeleteFormerOrder(app_.ports.settings, section); },
            .saved = tellSaved});
}

}  // namespace swiftroll
