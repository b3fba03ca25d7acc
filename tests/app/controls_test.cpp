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

TEST(Options, HaveDefaultsAndTakeOnlyTextsThatAreValues) {
    const struct {
        TextView name, standard, text, value, refused;
    } cases[] = {
        {"chkTips", "1", "0", "0", "|2|-1|01|true| 1"},
        {"chkIgnoreCase", "1", "0", "0", "2"},
        {"chkDelAccents", "1", "1", "1", "2"},
        {"optOutExtension", "1", "2", "2", "|3|-1|HTML|1.0|99999999999999999999"},
        {"txtPlaceFormat", "%0", " %1 ", " %1 ", {}},
        {"txtPlaceSepar", ",", "", "", {}},
        {"txtOutExtension(2)", "xml", "", "", {}},
        {"txtINDEX", "1", "2", "2", {}},
        {"cboGedIn", "", "1", "1", {}},
        {"cboLoad", "Lire Tout", "1", "Lire Sans Famille", "|2|-1|Lire|4294967296"},
        {"cboSaveSwift", "Ecrire en HTML", "Ecrire en XML", "Ecrire en XML", "3"},
        {"lbOuputPlacesOrder", "1Naissance/2Décès/3Mariage, Divorce,.../"_t, "3, 1,2",
         "3Mariage, Divorce,.../1Naissance/2Décès/"_t,
         "|1,2|1,2,3,|1,1,2|1,2,3,3|0,1,2|1,2,4|1;2;3|4294967297,2,3"},
        {"cmdColorMale", "8438015", "0x00fF8000", "16744448", "|0x|-1|16777216|0x1000000|red|0x0x1|FF"},
        {"cmdColorFemale", "16777088", "255", "255", "99999999999999"},
    };
    OptionRecord options;
    int events = 0;
    options.chkTips.OnClick = options.optOutExtension.OnClick = options.cboLoad.OnClick = [&] { ++events; };
    for (const auto& c : cases) {
        Control* const control = options.Find(c.name);
        ASSERT_NE(control, nullptr) << c.name;
        EXPECT_EQ(ValueOf(*control), c.standard) << c.name;
        control->SetFromText(c.text);
        EXPECT_EQ(ValueOf(*control), c.value) << c.name;
        if (c.refused.data() == nullptr) continue;
        for (const TextView text : Split(c.refused, "|"))
            EXPECT_EQ(test::KindOf([&] { control->SetFromText(text); }), FailureKind::TypeMismatch) << text;
        EXPECT_EQ(ValueOf(*control), c.value) << c.name;
    }
    EXPECT_EQ(events, 3) << "none for a text that is refused";
    EXPECT_EQ(test::KindOf([&] { options.lblFont.SetFromText("Arial"); }), FailureKind::TypeMismatch);
    for (const Control* control : options.Controls()) EXPECT_EQ(options.Find(control->Name()), control);
    EXPECT_EQ(options.Find("txtOutExtension"), nullptr);
}

TEST(Controls, EventsComeAfterTheValueAndOnlyForAChange) {
    OptionRecord options;
    Text seen;
    const auto note = [&](Control& control) {
        return [&] { seen += control.Name() + "=" + ValueOf(control) + ";"; };
    };
    options.chkTips.OnClick = note(options.chkTips);
    options.txtINDEX.OnChange = note(options.txtINDEX);
    options.chkTips.SetChecked(true);
    options.chkTips.SetChecked(false);
    options.txtINDEX.SetText("1");
    // A text box that is left tidies its text.
    options.txtINDEX.OnLostFocus = [&] { options.txtINDEX.SetText(Trim(options.txtINDEX.Get())); };
    options.txtINDEX.SetFromText(" 3 ");
    EXPECT_EQ(seen, "chkTips=0;txtINDEX= 3 ;txtINDEX=3;");
}

TEST(Controls, CombosTellATypedTextFromAPickedItem) {
    OptionRecord options;
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
    OptionRecord options;
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
