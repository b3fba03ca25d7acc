#include "settings.h"

#include <algorithm>

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

}  // namespace

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

void ArrangeColumns(frmMain& main, const std::vector<std::string>& keys) {
    std::vector<Column*> order;
    const auto isPlaced = [&](const Column* column) {
        return std::find(order.begin(), order.end(), column) != order.end();
    };
    for (const std::string& key : keys) {
        Column* column = main.lvwOut.FindColumn(TextOf(key));
        if (column == nullptr || column->Key == "Number") throw UsageError("colonne inconnue : " + key);
        if (isPlaced(column)) throw UsageError("colonne répétée : " + key);
        order.push_back(column);
    }
    order.push_back(main.lvwOut.FindColumn("Number"));
    for (Column& column : main.lvwOut.Columns()) {
        if (!isPlaced(&column)) order.push_back(&column);
    }
    for (std::size_t i = 0; i < order.size(); ++i) order[i]->Position = static_cast<std::int16_t>(i + 1);
}

}  // namespace swiftroll::cli
