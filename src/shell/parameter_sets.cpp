#include "shell/parameter_sets.h"

#include "shell/settings/column_settings.h"
#include "shell/settings/list_order.h"
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
    sets_.emplace_back(app_, app_.cboCells, commands.cmdSaveCells,
                       ParameterSet::Parts{.loadName = "cboCells_LostFocus",
                                           .saveName = "cmdSaveCells_Click",
                                           .section = "OutCells",
                                           .fields = {NumberField("Horiz", app_.txtKinH),
                                                      NumberField("Vertic", app_.txtKinV),
                                                      NumberField("Height", app_.txtKinHeight),
                                                      NumberField("Width", app_.txtKinWidth),
                                                      ColourField("FColor", app_.cmdColorFemale),
                                                      ColourField("MColor", app_.cmdColorMale),
                                                      ColourField("UColor", app_.cmdColorUndefined),
                                                      FlagField("Landscape", app_.txtKinshipLandscape),
                                                      OptionField("optFullName0", app_.optFullName, 0),
                                                      OptionField("optFullName1", app_.optFullName, 1),
                                                      FlagField("chkIndiID", app_.chkIndiID),
                                                      FlagField("chkIndiBirthDate", app_.chkIndiBirthDate),
                                                      FlagField("chkIndiBirthPlace", app_.chkIndiBirthPlace),
                                                      FlagField("chkIndiDeathDate", app_.chkIndiDeathDate),
                                                      FlagField("chkIndiDeathPlace", app_.chkIndiDeathPlace),
                                                      FlagField("chkMarrID", app_.chkMarrID),
                                                      FlagField("chkMarrDate", app_.chkMarrDate),
                                                      FlagField("chkMarrPlace", app_.chkMarrPlace),
                                                      CaptionField("lblFont", app_.lblFont),
                                                      TextField("txtFont", app_.txtFont)}});

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
                                           })});

    sets_.emplace_back(
        app_, app_.cboOutPlace, commands.cmdSavePlace,
        ParameterSet::Parts{
            .loadName = "cboOutPlace_LostFocus",
            .saveName = "cmdSavePlace_Click",
            .section = "OutPlace",
            .fields = {TextField("Format", app_.txtPlaceFormat), TextField("Separ", app_.txtPlaceSepar),
                       FlagField("Trim", app_.chkTrimSepar)},
            .loadMore =
                [this](const Text& section) {
                    SetListOrder(app_, app_.lbOuputPlacesOrder,
                                 app_.ports.settings.GetAllSettings(Concat({section, kOrderSubSection})));
                },
            .saveMore =
                [this](const Text& section) {
                    const Text below = Concat({section, kOrderSubSection});
                    for (const SettingEntry& entry : ListOrderEntries(app_.lbOuputPlacesOrder, below)) {
                        app_.ports.settings.SaveSetting(entry.section, entry.key, entry.value);
                    }
                },
            .tidy = [this](const Text& section) { DeleteFormerOrder(app_.ports.settings, section); }});
}

}  // namespace swiftroll
