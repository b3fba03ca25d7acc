#include "app/controls.h"

#include <gtest/gtest.h>

#include "app/option_record.h"
#include "support/kind_of.h"
#include "text/failure.h"
#include "text/literal.h"

namespace swiftroll {
namespace {

Text ValueOf(const Control& control) {
    Text all;
    for (const Text& text : control.ToTexts()) all += text + "/";
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
    EXPECT_EQ(ValueOf(list), "002 Décès/003 Mariage, Divorce,.../001 Naissance/"_t);
    list.Move(2, 1);
    EXPECT_EQ(ValueOf(list), "002 Décès/001 Naissance/003 Mariage, Divorce,.../"_t);
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

TEST(Controls, AUsersTextMustBeRightAndThatOfTheSettingsMeanSomething) {
    struct Case {
        TextView name, text, ofUser, ofSettings;  // what the control holds then; nothing where it is refused
    };
    const TextView order = "002 Décès/001 Naissance/003 Mariage, Divorce,.../"_t;
    const Case cases[] = {
        {"chkTips", "0", "0/", "0/"},
        {"chkTips", "False", "", "0/"},
        {"chkTips", "-1", "", "1/"},
        {"chkTips", "perhaps", "", ""},
        {"optTabSpace", "1", "False/True/", "True/False/"},
        {"optTabSpace", "2", "", "True/False/"},
        {"optTabSpace", "True", "", "True/False/"},
        {"lbOuputPlacesOrder", "2,1,3", order, ""},
        {"lbOuputPlacesOrder", "2,1,3,9", "", ""},
        {"lbOuputPlacesOrder", "9,2,3", "", ""},
        {"lbOuputPlacesOrder", "1,1,3", "", ""},
        {"cmdColorMale", "0xFF", "255/", ""},
        {"cmdColorMale", "16777217", "", "1/"},
        {"lblFont", "Times", "", "Times/"},
        {"cboLoad", "Lire", "", "Lire Tout/Lire Sans Famille/"},
    };
    for (const Case& known : cases) {
        for (const auto origin : {ValueTexts::Origin::User, ValueTexts::Origin::Settings}) {
            OptionRecord options({});
            Control& control = *options.Find(known.name);
            Text held;
            test::KindOf([&] {
                control.FromTexts({.origin = origin, .texts = {Text(known.text)}});
                held = ValueOf(control);
            });
            EXPECT_EQ(held, origin == ValueTexts::Origin::User ? known.ofUser : known.ofSettings)
                << known.name << "=" << known.text;
        }
    }
}

}  // namespace
}  // namespace swiftroll
