#include "settings.h"

#include <algorithm>

#include "list/group_columns.h"
#include "text/failure.h"
#include "words.h"

namespace swiftroll::cli {
namespace {

void SetField(frmMain& main, const std::string& assignment) {
    const auto sign = assignment.find('=');
    const std::string name = assignment.substr(0, sign);
    if (sign == std::string::npos) throw UsageError("--set attend CHAMP=VALEUR : " + assignment);
    Control* control = main.Find(TextOf(name));
    if (control == nullptr) throw UsageError("champ inconnu : " + name);
    const Text value = TextOf(assignment.substr(sign + 1));
    try {
        control->SetFromText(value);
    } catch (const Failure&) {
        throw UsageError("valeur incorrecte pour " + name + " : " + assignment.substr(sign + 1));
    }
}

void SetPlacesOrder(frmMain& main, const std::string& order) {
    try {
        main.lbOuputPlacesOrder.SetFromText(TextOf(order));
    } catch (const Failure&) {
        throw UsageError("--ordre-lieux attend les nombres 1, 2 et 3, chacun une fois : " + order);
    }
}

/// Puts these columns of `lvwOut` before `Number`. @throws UsageError for an unknown or repeated column
void ArrangeColumns(frmMain& main, const std::vector<std::string>& keys) {
    std::vector<Column*> order;
    for (const std::string& key : keys) {
        Column* column = main.lvwOut.FindColumn(TextOf(key));
        if (column == nullptr || column->Key == "Number") throw UsageError("colonne inconnue : " + key);
        if (std::find(order.begin(), order.end(), column) != order.end()) {
            throw UsageError("colonne répétée : " + key);
        }
        order.push_back(column);
    }
    modCalcOut::PlaceBeforeNumber(main.lvwOut, std::move(order));
}

}  // namespace

std::string DefaultColumns() {
    std::string keys;
    for (const TextView key : modCalcOut::kDefaultGroups) {
        keys += (keys.empty() ? "" : ",") + std::string(key);
    }
    return keys;
}

void ApplySettings(frmMain& main, const std::vector<Setting>& settings) {
    for (const Setting& setting : settings) {
        switch (setting.kind) {
            case Setting::Kind::Field:
                SetField(main, setting.value);
                break;
            case Setting::Kind::WithoutFamilies:
                main.cboLoad.SetListIndex(1);
                break;
            case Setting::Kind::PlacesOrder:
                SetPlacesOrder(main, setting.value);
                break;
            case Setting::Kind::Columns:
                ArrangeColumns(main, Words(setting.value));
                break;
        }
    }
}

}  // namespace swiftroll::cli
