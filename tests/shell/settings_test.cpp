// What outlives a run: all options, histories, columns and places of windows.
#include <gtest/gtest.h>
#include <stdlib.h>

#include <filesystem>

#include "platform/settings_store.h"
#include "platform/sqlite.h"
#include "support/test_ports.h"
#include "text/literal.h"

namespace swiftroll::test {
namespace {

using Texts = std::vector<Text>;
using Values = std::map<Text, Text, std::less<>>;

/// Runs of the application, one after the other, on the same settings.
struct OneRun : TestPorts {
    explicit OneRun(SettingsStore& store)
        : main({dialogs, clock, events, files, folders, status, machine, desktop, desktop, desktop, store,
                preview, desktop, desktop}) {}
    void Start() {
        // What a check at the start finds, where it is switched on.
        files.contents["/data/SwiftRoll/Updates.ini"] = "[-SwiftRoll]\nVERS_00=a\n[a]\nVERS=3.4.0\n";
        main.Form_Load({});
    }
    frmMain main;
};

struct SavedSettings : testing::Test {
    MemorySettings store;
    Values& Section(TextView name) { return store.sections[Text(name)]; }
    /// A run that starts with the settings, for what it holds then.
    void Start(const std::function<void(OneRun&)>& look) {
        OneRun run(store);
        run.Start();
        look(run);
    }
};

/// Gives every control a value that depends on its name, other than its default.
void ChangeEverything(frmMain& main) {
    for (Control* control : main.Controls()) {
        if (auto* box = dynamic_cast<CheckBox*>(control)) box->SetChecked(!box->Checked());
        if (auto* box = dynamic_cast<TextBox*>(control)) box->SetText(box->Name() + Text("\\é"_t));
        if (auto* group = dynamic_cast<OptionGroup*>(control)) group->SetIndex(group->Index() == 0 ? 1 : 0);
        auto* combo = dynamic_cast<ComboBox*>(control);
        if (combo != nullptr && !combo->IsSelector()) {
            combo->SetItems({combo->Name() + " 1", combo->Name() + " 2"});
            combo->SetListIndex(0);
        }
    }
    main.cboLoad.SetListIndex(1);
    main.txtFont.SetText("Times|12|1|0|0|0|255");
    main.lbOuputPlacesOrder.Move(2, 0);
    std::int16_t width = 0;
    for (Table* table : main.All()) {
        table->MoveColumn(table->Columns().back().Index, 1);
        for (Column& column : table->Columns()) column.Width = ++width;
        table->ColumnAt(ColumnId::OfIndex(2)).Icon = "OfUp";
    }
    main.Place = {30, 40, 1200, 900, true, true};
}

Text Described(const frmMain& main, const Control& control) {
    const auto* combo = dynamic_cast<const ComboBox*>(&control);
    // A start chooses the widest drawing, whatever was chosen before.
    if (combo == &main.cboDrawKinship) return {};
    Text value = combo == nullptr ? Text() : combo->Get();
    for (const Text& text : control.ToTexts()) value += "|" + text;
    return value;
}

Values Everything(frmMain& main) {
    Values values;
    for (const Control* control : main.Controls()) values[control->Name()] = Described(main, *control);
    for (Table* table : main.All()) {
        for (const Column& column : table->Columns()) {
            values[table->Name() + "/" + column.Key] =
                std::to_string(column.Position) + "/" + std::to_string(column.Width) + "/" + column.Icon;
        }
    }
    const WindowPlace& place = main.Place;
    for (const int side : {place.top, place.left, place.width, place.height}) {
        values["place"] += std::to_string(side) + " ";
    }
    values["captions"] = main.cmdLoad.Caption + main.cmdSaveSwift.Caption + main.lblFont.Caption;
    return values;
}

TEST_F(SavedSettings, EverythingComesBackFromTheDisk) {
    char name[] = "/tmp/settings-XXXXXX";
    const std::filesystem::path folder = mkdtemp(name);
    Values before;
    for (int generation = 0; generation < 3; ++generation) {
        platform::SettingsFile disk(folder.string());
        OneRun run(disk);
        run.Start();
        if (generation == 0) {
            ChangeEverything(run.main);
            before = Everything(run.main);
        } else {
            for (const auto& [key, value] : Everything(run.main)) EXPECT_EQ(value, before[key]) << key;
        }
        run.main.savedSettings.SaveAllControls();
        EXPECT_TRUE(run.dialogs.boxes.empty()) << run.dialogs.boxes.front().text;
        EXPECT_EQ(disk.GetSetting("Product", run.main.sVersion, ""), std::to_string(generation + 1));
        EXPECT_EQ(disk.GetSetting("Product", "LastRun", ""), "22/11/2026 14:05:09");
    }
    std::filesystem::remove_all(folder);
}

TEST_F(SavedSettings, ANameOfAHistoryThatCannotBeReadIsToldAndKeepsItsPlace) {
    char name[] = "/tmp/settings-XXXXXX";
    const std::filesystem::path folder = mkdtemp(name);
    const TextView section = "Settings\\frmMain\\cboGedIn";
    const auto useAndSave = [&](std::initializer_list<TextView> files) {
        platform::SettingsFile disk(folder.string());
        OneRun run(disk);
        run.Start();
        for (const TextView file : files) run.main.cboGedIn.SetFromText(file);
        run.main.savedSettings.SaveAllControls();
        Text told;
        for (const MessageBox& box : run.dialogs.boxes) told += box.text;
        return told;
    };
    EXPECT_EQ(useAndSave({"c", "b", "a"}), "");
    platform::SqliteFile((folder / "settings.sqlite").string())
        .Execute("UPDATE settings SET value = CAST(x'FF' AS TEXT) WHERE value = 'b'");
    EXPECT_NE(useAndSave({"d"}).find("cboGedIn/001|"), Text::npos);
    platform::SettingsFile disk(folder.string());
    EXPECT_EQ(disk.GetSetting(section, "000", ""), "d");
    EXPECT_EQ(disk.GetSetting(section, "001", "unreadable"), "unreadable");
    EXPECT_EQ(disk.GetSetting(section, "002", ""), "a");
    EXPECT_EQ(disk.GetSetting(section, "003", ""), "c");
    std::filesystem::remove_all(folder);
}

TEST_F(SavedSettings, StandUnderTheNamesOfTheirControls) {
    Start([&](OneRun& run) {
        run.main.chkTips.SetChecked(false);
        run.main.txtOutExtension[2].SetText("x");
        run.main.cboGedIn.SetItems({"a", "  ", "b"});
        run.main.cboFavorites[5].SetItems({"k^"});
        run.main.lvwOut.ColumnAt(Out::Number).Key.clear();
        run.main.kinshipDialog.chkInverted.SetChecked(true);
        run.main.Place = {-32000, 7, 0, 800, true, true};
        Section("Settings\\frmMain\\cboGedIn") = {{"002", " "}, {"004", "B"}, {"010", "unknown"}};
        run.main.savedSettings.SaveAllControls();
    });
    const TextView array = "°"_t;
    EXPECT_EQ(Section("Settings\\frmMain\\chkTips"), (Values{{"CheckOrOptionBox", "0"}}));
    EXPECT_EQ(Section("Settings\\frmMain\\txtOutExtension" + Text(array) + "2"), (Values{{"TextBox", "x"}}));
    EXPECT_EQ(Section("Settings\\frmMain\\optTabSpace" + Text(array) + "0"),
              (Values{{"CheckOrOptionBox", "True"}}));
    EXPECT_EQ(Section("Settings\\frmMain\\optTabSpace" + Text(array) + "1"),
              (Values{{"CheckOrOptionBox", "False"}}));
    EXPECT_EQ(Section("Settings\\frmMain\\cboFavorites" + Text(array) + "5"), (Values{{"000", "k^"}}));
    EXPECT_EQ(Section("Settings\\frmMain\\cboGedIn"),
              (Values{{"000", "a"}, {"001", "b"}, {"010", "unknown"}}));
    EXPECT_EQ(
        Section("Settings\\frmMain\\lbOuputPlacesOrder"),
        (Values{{"001 Naissance", "1"}, {Text("002 Décès"_t), "2"}, {"003 Mariage, Divorce,...", "3"}}));
    EXPECT_EQ(Section("Settings\\frmMain\\lvwOut\\Position")["*3"], "3");
    EXPECT_EQ(Section("Settings\\frmMain\\lvwXref1\\Icon").size(), 5u);
    EXPECT_EQ(Section("Settings\\frmKinshipSelect\\chkInverted"), (Values{{"CheckOrOptionBox", "1"}}));
    // In twips; what a minimised window tells is not kept.
    EXPECT_EQ(Section("Settings\\frmMain"),
              (Values{{"WinTop", "0"}, {"WinLeft", "105"}, {"WinWidth", "200"}, {"WinHeight", "12000"}}));
    for (const TextView none : {"cmdColorMale", "lblFont", "cmdLoad"}) {
        EXPECT_EQ(store.sections.count("Settings\\frmMain\\" + Text(none)), 0u) << none;
    }
}

TEST_F(SavedSettings, PlacesOfWindowsAreMadeUsable) {
    Section("Settings\\frmMain") = {
        {"WinTop", "-450"}, {"WinLeft", "300"}, {"WinWidth", "900"}, {"Other", "x"}};
    Section("Settings\\frmKinshipSelect") = {{"WinWidth", "9000"}};
    OneRun run(store);
    run.main.kinshipDialog.Place.resizable = false;
    run.main.kinshipDialog.Place.width = 500;
    run.Start();
    EXPECT_EQ(run.main.Place.top, 0);
    EXPECT_EQ(run.main.Place.left, 20);
    EXPECT_EQ(run.main.Place.width, 1000 / 15);
    EXPECT_TRUE(run.main.Place.known);
    EXPECT_EQ(run.main.kinshipDialog.Place.width, 500);
    EXPECT_FALSE(run.main.kinshipDialog.Place.known);
}

TEST_F(SavedSettings, HistoriesWithoutAFirstItemAreLeftOut) {
    Section("Settings\\frmMain\\cboGedIn") = {{"000", " "}, {"001", "a"}};
    // A gap, a number beyond the list, and a key that is no number.
    Section("Settings\\frmMain\\cboGedOut") = {{"000", "a"}, {"002", "c"}, {"009", "x"}, {"b", "y"}};
    Start([](OneRun& run) {
        EXPECT_EQ(run.main.cboGedIn.Get(), "/docs/.ged");
        EXPECT_EQ(run.main.cboGedOut.Items(), (Texts{"a", "c"}));
        EXPECT_EQ(run.main.cboGedOut.ListIndex(), 0);
        EXPECT_TRUE(run.dialogs.boxes.empty()) << run.dialogs.boxes.front().text;
    });
}

TEST_F(SavedSettings, AnOrderOfOtherItemsIsDropped) {
    const Text section = "Settings\\frmMain\\lbOuputPlacesOrder";
    const Values orders[] = {
        {{"001 Naissance", "2"}, {Text("002 Décès"_t), "1"}},
        {{"001 Naissance", "1"}, {Text("002 Décès"_t), "2"}, {"003 Mariage", "3"}},
        {{"001 Naissance", "1"}, {Text("002 Décès"_t), "1"}, {"003 Mariage, Divorce,...", "3"}},
        {{"001 Naissance", "1"}, {Text("002 Décès"_t), "3"}, {"009 Mariage, Divorce,...", "2"}},
        {{"001 Naissance", "1"}, {Text("002 Décès"_t), "2"}, {"003 Mariage, Divorce,...", "4"}},
    };
    for (const Values& order : orders) {
        Section(section) = order;
        Section(section + "s") = order;
        Start([&](OneRun& run) {
            const auto& items = run.main.lbOuputPlacesOrder.Items();
            ASSERT_EQ(items.size(), 3u);
            EXPECT_EQ(items[0].text, "Naissance");
            EXPECT_EQ(items[1].value, 2);
            // Only a place that the list does not have is a failure, and kept.
            const std::size_t failures = &order == &orders[4] ? 1 : 0;
            EXPECT_EQ(store.sections.count(section), failures);
            EXPECT_EQ(store.sections.count(section + "s"), 1u);
            EXPECT_EQ(run.dialogs.boxes.size(), failures);
        });
    }
}

TEST_F(SavedSettings, ColumnsThatAreNotKnownAreSkipped) {
    const Text section = "Settings\\frmMain\\lvwXref1";
    Section(section + "\\Position") = {{"Family", "1"}, {"Gone", "2"}, {"*1", "3"}, {"*99", "4"}};
    Section(section + "\\Width") = {{"*3", "77"}, {"Gone", "wide"}, {"*99", "5"}};
    Section(section + "\\Icon") = {{"Type", "OfDw"}, {"Gone", "x"}};
    Start([](OneRun& run) {
        Text columns;
        for (const Column& column : run.main.lvwXref1.Columns()) {
            columns += column.Key + std::to_string(column.Position) + "/" + std::to_string(column.Width) +
                       column.Icon + " ";
        }
        EXPECT_EQ(columns,
                  "Indi13/2540OnNo Type2/2540OfDw Indi24/77OnNo IDFamily5/2540OnNo Family1/6400OnNo ");
        EXPECT_TRUE(run.dialogs.boxes.empty()) << run.dialogs.boxes.front().text;
    });
}

TEST_F(SavedSettings, AValueThatMeansNothingIsPassedOverAndKept) {
    const Text tabs = "Settings\\frmMain\\optTabSpace" + Text("°"_t);
    const Text order = "Settings\\frmMain\\lbOuputPlacesOrder";
    const Values unreadable = {
        {"001 Naissance", "x"}, {Text("002 Décès"_t), "1"}, {"003 Mariage, Divorce,...", "2"}};
    Section("Settings\\frmMain") = {{"WinTop", "300"}, {"WinWidth", "large"}, {"WinHeight", "12000"}};
    Section("Settings\\frmMain\\chkTips") = {{"CheckOrOptionBox", "perhaps"}};
    Section("Settings\\frmMain\\chkInvertNames") = {{"CheckOrOptionBox", "1"}};
    Section(tabs + "0") = {{"CheckOrOptionBox", ""}};
    Section(order) = unreadable;
    Section("Settings\\frmMain\\lvwXref1\\Width") = {{"Type", "wide"}, {"Indi1", "-4"}};
    Section("Settings\\frmMain\\lvwXref1\\Icon") = {{"Indi2", "x"}};
    Section("Settings\\frmMain\\lvwXref1\\Position") = {{"Type", "first"}};
    Section("Settings\\frmMain\\cboGedOut") = {{"000", " "}, {"001", "hidden"}};
    Section("Settings\\frmMain\\txtKinV") = {{"TextBox", "31"}};
    Start([&](OneRun& run) {
        Text told;
        for (const MessageBox& box : run.dialogs.boxes) told += box.text;
        for (const TextView key :
             {"|Load/Settings\\frmMain/WinWidth|", "chkTips/CheckOrOptionBox|", "lvwXref1\\Width/Type|",
              "lvwXref1\\Width/Indi1|", "lvwXref1\\Icon/Indi2|"}) {
            EXPECT_NE(told.find(key), Text::npos) << key;
        }
        EXPECT_EQ(run.dialogs.boxes.size(), 8u) << told;
        EXPECT_EQ(run.main.Place.top, 20);
        EXPECT_EQ(run.main.Place.height, 800);
        EXPECT_TRUE(run.main.chkTips.Checked() && run.main.chkInvertNames.Checked());
        EXPECT_EQ(run.main.txtKinV.Get(), "31");
        run.main.txtKinH.SetText("7");
        run.main.savedSettings.SaveAllControls();
    });
    EXPECT_EQ(Section("Settings\\frmMain")["WinWidth"], "large");
    EXPECT_EQ(Section("Settings\\frmMain\\chkTips")["CheckOrOptionBox"], "perhaps");
    EXPECT_EQ(Section(tabs + "0")["CheckOrOptionBox"], "");
    EXPECT_EQ(Section(order), unreadable);
    EXPECT_EQ(Section("Settings\\frmMain\\lvwXref1\\Width")["Type"], "wide");
    EXPECT_EQ(Section("Settings\\frmMain\\lvwXref1\\Icon")["Indi2"], "x");
    EXPECT_EQ(Section("Settings\\frmMain\\lvwXref1\\Position")["Type"], "first");
    EXPECT_EQ(Section("Settings\\frmMain\\cboGedOut"), (Values{{"000", "hidden"}}));
    EXPECT_EQ(Section("Settings\\frmMain\\txtKinV")["TextBox"], "31");
    EXPECT_EQ(Section("Settings\\frmMain\\txtKinH")["TextBox"], "7");
    // What the user sets is written, with all that belongs to it.
    Start([&](OneRun& run) {
        run.main.chkTips.SetChecked(false);
        run.main.optTabSpace.SetIndex(1);
        run.main.lbOuputPlacesOrder.Move(2, 0);
        run.main.lvwXref1.MoveColumn(Xref1::Indi2, 1);
        run.main.lvwXref1.ColumnAt(Xref1::Type).Width = 300;
        run.main.lvwXref1.ColumnAt(Xref1::Indi1).Width = 400;
        run.main.lvwXref1.ColumnAt(Xref1::Indi2).Icon = "OfUp";
        run.main.Place.width = 1000;
        run.main.savedSettings.SaveAllControls();
    });
    Start([](OneRun& run) {
        EXPECT_TRUE(run.dialogs.boxes.empty()) << run.dialogs.boxes.front().text;
        EXPECT_FALSE(run.main.chkTips.Checked());
        EXPECT_EQ(run.main.optTabSpace.Index(), 1);
        EXPECT_EQ(run.main.lbOuputPlacesOrder.Items()[0].value, 3);
        EXPECT_EQ(run.main.lvwXref1.ColumnAt(Xref1::Indi2).Position, 1);
        EXPECT_EQ(run.main.Place.width, 1000);
    });
}

TEST_F(SavedSettings, TwoProgramsAtATimeKeepWhatBothDid) {
    Section("Settings\\frmMain\\cboGedIn") = {{"000", "a"}, {"001", "b"}, {"002", "c"}};
    Section("Settings\\frmMain\\cboFavorites°5"_t) = {{"000", "k^old"}};
    for (int i = 0; i < 10; ++i) {
        Section("Settings\\frmMain\\cboGedOut")["00" + std::to_string(i)] = "o" + std::to_string(i);
    }
    OneRun first(store), second(store);
    first.Start();
    second.Start();
    second.main.chkTips.SetChecked(false);
    second.main.optOutExtension.SetIndex(2);
    second.main.cboGedIn.SetItems({"n", "a", "c"});
    second.main.cboFavorites[5].SetItems({"k^new"});
    second.main.cboGedOut.SetFromText("second");
    first.main.chkMaxLinks.SetChecked(true);
    first.main.cboGedIn.SetItems({"m", "A", "b"});
    first.main.cboGedOut.SetFromText("o9");
    second.main.savedSettings.SaveAllControls();
    // A second save of the same run meets the same.
    for (int i = 0; i < 2; ++i) first.main.savedSettings.SaveAllControls();
    EXPECT_EQ(Section("Settings\\frmMain\\cboGedIn"), (Values{{"000", "m"}, {"001", "A"}, {"002", "n"}}));
    EXPECT_EQ(Section("Settings\\frmMain\\cboFavorites°5"_t), (Values{{"000", "k^new"}}));
    const Values& out = Section("Settings\\frmMain\\cboGedOut");
    EXPECT_EQ(out.size(), 10u);
    EXPECT_EQ(out.at("000"), "o9") << "in use, though it had left the other list";
    EXPECT_EQ(out.at("001"), "o0");
    Start([](OneRun& run) {
        EXPECT_FALSE(run.main.chkTips.Checked());
        EXPECT_TRUE(run.main.chkMaxLinks.Checked());
        EXPECT_EQ(run.main.optOutExtension.Index(), 2);
    });
}

TEST_F(SavedSettings, SelectorsKeepTheirItemsAndStoresThatGrewShrink) {
    const Text section = "Settings\\frmFind\\cboColumns" + Text("°"_t) + "0";
    Start([&](OneRun& run) {
        for (int generation = 0; generation < 30; ++generation) {
            for (const Text& item : run.main.findDialog.cboColumns[0].Items()) {
                const std::string number = std::to_string(Section(section).size());
                Section(section)[std::string(3 - std::min<std::size_t>(3, number.size()), '0') + number] =
                    item;
            }
        }
    });
    ASSERT_EQ(Section(section).size(), 510u);
    Section(section)["other"] = "x";
    for (int generation = 0; generation < 2; ++generation) {
        Start([&](OneRun& run) {
            EXPECT_EQ(run.main.findDialog.cboColumns[0].Items().size(), 17u);
            EXPECT_EQ(run.main.findDialog.cboColumns[0].ListIndex(), 0);
            run.main.savedSettings.SaveAllControls();
            EXPECT_EQ(Section(section).size(), 18u);
        });
    }
}

TEST_F(SavedSettings, TheNoticeOfADamagedStoreOutlivesTheCheckOfUpdates) {
    Section("Settings\\frmMain\\chkCheckUpdates") = {{"CheckOrOptionBox", "1"}};
    store.notice = "Le fichier des paramètres était endommagé."_t;
    Start([&](OneRun& run) {
        EXPECT_TRUE(run.main.pnlMessage.Get().starts_with(store.notice + " Aucun site"));
    });
}

TEST_F(SavedSettings, ASaveThatFailsLeavesTheFormerOnesWhole) {
    Start([](OneRun& run) { run.main.savedSettings.SaveAllControls(); });
    const auto before = store.sections;
    Start([&](OneRun& run) {
        ChangeEverything(run.main);
        // In the count of the saves, in a control, and in the columns of a table.
        for (const int room : {1, 40, 200}) {
            run.dialogs.boxes.clear();
            store.room = room;
            run.main.savedSettings.SaveAllControls();
            EXPECT_EQ(store.sections, before) << room;
            ASSERT_FALSE(run.dialogs.boxes.empty());
            EXPECT_NE(run.dialogs.boxes.back().text.find("|Forms=frmMain/sName="), Text::npos);
            EXPECT_LE(run.dialogs.boxes.size(), 2u);
        }
        store.room = -1;
        run.main.savedSettings.SaveAllControls();
        EXPECT_NE(store.sections, before);
    });
}

}  // namespace
}  // namespace swiftroll::test
