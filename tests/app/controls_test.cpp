#include "app/controls.h"

#include <gtest/gtest.h>

#include "app/option_record.h"
#include "support/kind_of.h"
#include "text/code_page.h"
#include "text/edit.h"
#include "text/failure.h"
#include "text/literal.h"
#include "text/numbers.h"

namespace swiftroll {
namespace {

/// The value of an option: a text, or the number of what is chosen.
Text ValueOf(const Control& control) {
    if (const auto box = dynamic_cast<const CheckBox*>(&control)) return box->Checked() ? "1" : "0";
    if (const auto group = dynamic_cast<const OptionGroup*>(&control)) return Decimal(group->Index());
    if (const auto box = dynamic_cast<const TextBox*>(&control)) return box->Get();
    if (const auto combo = dynamic_cast<const ComboBox*>(&control)) return combo->Get();
    if (const auto button = dynamic_cast<const ColourButton*>(&control)) return Decimal(button->Colour());
    Text all;
    if (const auto list = dynamic_cast<const OrderedList*>(&control)) {
        for (const auto& item : list->Items()) all += Concat({Decimal(item.value), item.text, "/"});
    }
    return all;
}

TEST(Controls, CombosTellATypedTextFromAPickedItem) {
    OptionRecord options({});
    ComboBox& combo = options.cboGedIn;
    Text events;
    combo.OnClick = [&] { events += "click "; };
    combo.OnGotFocus = [&] { events += "+ged "; };
    combo.OnLostFocus = [&] { events += "-ged "; };
    options.OnFocusChanged = [&] { events += options.ActiveControl()->Name() + " "; };
    combo.SetItems({"a.ged", "b.ged"});
    combo.SetListIndex(1);
    combo.SetItems({"c.ged", "b.ged", "a.ged"});
    EXPECT_EQ(combo.Get(), "b.ged");
    EXPECT_EQ(combo.ListIndex(), -1);
    combo.SetFromText("1");
    options.SetFocus(combo);
    options.SetFocus(combo);
    options.SetFocus(options.txtINDEX);
    EXPECT_EQ(events, "click +ged -ged +ged cboGedIn -ged txtINDEX ");
    for (const int index : {-1, 3}) EXPECT_THROW(combo.SetListIndex(index), Failure);
    EXPECT_THROW(options.optTabSpace.SetIndex(2), Failure);
    EXPECT_EQ(combo.Get(), "1");
}

TEST(Controls, OrderedListsAreDraggedAndDisabledCommandsDoNothing) {
    OptionRecord options({});
    OrderedList& list = options.lbOuputPlacesOrder;
    list.Move(0, 2);
    EXPECT_EQ(ValueOf(list), "2Décès/3Mariage, Divorce,.../1Naissance/"_t);
    list.Move(2, 1);
    EXPECT_EQ(ValueOf(list), "2Décès/1Naissance/3Mariage, Divorce,.../"_t);
    EXPECT_THROW(list.Move(0, 3), Failure);
    EXPECT_THROW(list.Move(3, 0), Failure);
    Command command(options, {"cmdTest", "Essai"}, "Ctrl+T", false);
    int runs = 0;
    command.Operation = [&] { ++runs; };
    command.Click();
    command.Enabled = true;
    command.Click();
    EXPECT_EQ(runs, 1);
}

}  // namespace
}  // namespace swiftroll
