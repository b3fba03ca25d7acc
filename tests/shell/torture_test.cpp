// Any command can run while a read or a search yields. Here random ones do, nested, with random answers, on
// random small files: nothing may break, and what follows must be as in a program that was just started.
//
// SWIFTROLL_SEEDS in the environment is the number of runs; SWIFTROLL_FIRST_SEED the first of them.
#include <gtest/gtest.h>

#include <cstdlib>
#include <random>

#include "support/test_ports.h"
#include "text/edit.h"
#include "text/fold.h"
#include "text/literal.h"
#include "text/numbers.h"

namespace swiftroll::test {
namespace {

constexpr int kDefaultSeeds = 100;
constexpr int kActs = 60;          // of a run
constexpr int kDeepest = 4;        // nesting of acts
constexpr int kMostYields = 4000;  // of a run, after which everything is asked to stop

constexpr TextView kFilters[] = {"", "d", "du", "dup", "\xC9lise m", "1 paris", "@", "fils", "zz"};

class Dice {
  public:
    explicit Dice(std::uint32_t seed) : engine_(seed) {}
    std::int32_t Below(std::int32_t n) {
        return static_cast<std::int32_t>(engine_() % static_cast<unsigned>(n));
    }
    bool OneIn(std::int32_t n) { return Below(n) == 0; }
    template <class Range>
    auto& Pick(Range& range) {
        return range[static_cast<std::size_t>(Below(static_cast<std::int32_t>(std::size(range))))];
    }
    /// Mostly one of `n` rows or columns from 0; sometimes none, -1, or one that is not there.
    std::int32_t Place(std::int32_t n) { return Below(n + 3) - 1; }

  private:
    std::mt19937 engine_;
};

/// A file of a few people with many ties between them, and sometimes lines that a reader asks about.
Text RandomFile(Dice& dice) {
    const std::int32_t people = 6 + dice.Below(8), families = 3 + dice.Below(4);
    const TextView names[] = {"Jean /Dupont/", "Élise /DUPONT/"_t, "/Le Gall/", "Anne /Martin/", ""};
    const TextView oddLines[] = {"1 CHAR UTF-8\n", "nonsense\n", "9 DEEP\n3 DEEPER\n", "0 @N1@ NOTE note\n",
                                 "1 ALIA @I1@\n"};
    const auto person = [&] { return Concat({" @I", Decimal(dice.Below(people) + 1), "@\n"}); };
    Text file = "0 HEAD\n1 CHAR ANSI\n";
    for (std::int32_t i = 1; i <= people; ++i) {
        file += Concat({"0 @I", Decimal(i), "@ INDI\n1 NAME ", dice.Pick(names), "\n1 SEX ",
                        dice.OneIn(2) ? "M" : "F", "\n1 BIRT\n2 DATE ", Decimal(1700 + dice.Below(200)),
                        "\n2 PLAC Paris, Seine\n"});
        if (dice.OneIn(25)) file += dice.Pick(oddLines);
    }
    for (std::int32_t i = 1; i <= families; ++i) {
        file += Concat({"0 @F", Decimal(i), "@ FAM\n1 HUSB", person(), "1 WIFE", person(), "1 CHIL", person(),
                        "1 CHIL", person(), "1 MARR\n2 DATE 1801\n"});
    }
    return WithCrLf(file + "0 TRLR\n");
}

/// A program with a user who does anything at any time.
class Monkey : public Dialogs, public EventPump {
  public:
    explicit Monkey(std::uint32_t seed)
        : dice_(seed),
          main({*this, ports_.clock, *this, ports_.files, ports_.folders, ports_.status, ports_.machine,
                ports_.desktop, ports_.desktop, ports_.desktop, ports_.settings, ports_.preview,
                ports_.desktop, ports_.desktop}) {
        main.Form_Load({});
        file = RandomFile(dice_);
    }

    void Rage() {
        for (const TextView name : {"in.ged", "other.ged"}) ports_.files.contents[Text(name)] = file;
        ports_.files.contents["/models/SwiftRoll.Modele.html"] = "a @ID@ b";
        acts_ = kActs;
        isCalm_ = false;
        main.cboGedIn.SetText("in.ged");
        main.cmdLoad.Click();
        while (acts_ > 0) Act();
        isCalm_ = true;
    }
    /// Reads the file, computes the list and searches a kinship, as anybody would; what is in the tables
    /// then.
    std::vector<Text> Result() {
        ports_.files.contents = {{"in.ged", file}};
        main.cboGedIn.SetText("in.ged");
        main.cmdLoad.Click();
        main.cmdCalcOutput.Click();
        // Without a search the links of the last one stay.
        if (!main.kinshipRequest.FindPathBetween("@I1@", "@I2@")) main.lvwXref1.Clear();
        std::vector<Text> result;
        for (Table* table : main.All()) {
            for (const Text& row : RowsOf(*table)) result.push_back(Concat({table->Name(), " ", row}));
        }
        return result;
    }
    /// What a read and a search have found, whatever order it stands in. The numbers of the islands follow
    /// the order of the people, which the user may change meanwhile, and those of the paths that of the
    /// links.
    std::vector<Text> Findings();
    /// Reads the file and searches a kinship while the user looks around, so many times in each.
    void LookAround(int acts) {
        ports_.files.contents = {{"in.ged", file}};
        main.cboGedIn.SetText("in.ged");
        for (const auto& work :
             {std::function<void()>([&] { main.cmdLoad.Click(); }),
              std::function<void()>([&] { main.kinshipRequest.FindPathBetween("@I1@", "@I2@"); })}) {
            acts_ = acts;
            isCalm_ = false;
            work();
            isCalm_ = true;
        }
    }
    /// The user puts the options and the columns back as they are in `other`.
    void TakeSettings(const frmMain& other);
    /// Every table is what a table must be.
    void CheckTables();
    void CheckAtRest() {
        EXPECT_FALSE(main.bWaitCursor);
        EXPECT_FALSE(main.bTablesLocked);
        EXPECT_FALSE(main.bCanStop);
        EXPECT_FALSE(main.kinshipSearch.IsRunning());
        EXPECT_TRUE(main.cmdLoad.Enabled && main.mnuReadGedCom.Enabled && main.cboLoad.Enabled);
        EXPECT_TRUE(internalFailure.empty()) << internalFailure;
        // No menu is open, so nothing is painted.
        for (Table* table : main.All()) {
            if (table->Count() == 0) continue;
            Row row = table->Item(1);
            row.SetSelected(true);
            for (int c = 0; c <= table->ColumnCount(); ++c) {
                EXPECT_EQ(row.Look(ColumnId::OfIndex(c)), CellLook()) << table->Name();
            }
        }
    }

    BoxAnswer Show(const MessageBox& box) override;
    void ShowModal(Window& window) override;
    bool AskFile(const FileRequest&, Text& chosen) override {
        const TextView names[] = {"in.ged", "other.ged", "out", "missing", "full/disk", ""};
        chosen = dice_.Pick(names);
        return !isCalm_ && !dice_.OneIn(3);
    }
    bool AskColour(std::uint32_t& colour) override {
        colour = static_cast<std::uint32_t>(dice_.Below(1 << 24));
        return dice_.OneIn(2);
    }
    bool AskFont(CellFont&) override { return dice_.OneIn(2); }
    void PopUp(const Menu& menu) override;
    void YieldFor(int, const bool&) override { Yield(); }
    void Yield() override {
        if (isCalm_) return;
        if (++yields_ > kMostYields && !onlyLooks) main.RequestAbort();
        if (acts_ > 0 && depth_ < kDeepest && dice_.OneIn(6)) Act();
    }

  private:
    void Act();
    void DoAnything();
    void ClickAnything(Window& window);
    void ChangeAnything(Window& window);
    void WorkWithATable();
    void WorkWithTheTabs();
    void Search();

    Dice dice_;
    TestPorts ports_;
    int acts_ = 0, depth_ = 0, yields_ = 0;
    bool isCalm_ = true;

  public:
    /// The user only looks at what is there: sorts, gathers, marks, jumps and copies.
    bool onlyLooks = false;
    Text file, internalFailure, story;
    frmMain main;
};

BoxAnswer Monkey::Show(const MessageBox& box) {
    if (box.title.find("Erreur") != Text::npos) story += Concat({"\n", box.text, "\n"});
    if (box.text.starts_with(Decimal(static_cast<std::int32_t>(FailureKind::Internal)) + ":"))
        internalFailure = box.text;
    if (isCalm_ || onlyLooks) {
        if (box.topic == BoxTopic::Recalculation) return BoxAnswer::No;
        return box.buttons < BoxButtons::YesNo ? BoxAnswer::Ok : BoxAnswer::Yes;
    }
    const std::vector<BoxAnswer> answers[] = {{BoxAnswer::Ok},
                                              {BoxAnswer::Ok, BoxAnswer::Cancel},
                                              {BoxAnswer::Ok, BoxAnswer::Cancel, BoxAnswer::OkToAll},
                                              {BoxAnswer::Yes, BoxAnswer::No},
                                              {BoxAnswer::Yes, BoxAnswer::No, BoxAnswer::Cancel}};
    return dice_.Pick(answers[static_cast<std::size_t>(box.buttons)]);
}

void Monkey::ShowModal(Window& window) {
    for (int i = dice_.Below(4); i > 0 && window.Visible(); --i) ChangeAnything(window);
    if (window.Visible() && !dice_.OneIn(4)) ClickAnything(window);
    window.Hide();
}

void Monkey::PopUp(const Menu& menu) {
    if (dice_.OneIn(4)) return;
    // The entry that takes long, during which other menus are opened, is chosen more often than others.
    if (!onlyLooks && main.mnuFindPath.Enabled && dice_.OneIn(3)) return main.mnuFindPath.Click();
    const Menu& entry = dice_.Pick(menu.entries);
    const bool starts = &entry.head == &main.mnuFindPath || &entry.head == &main.mnuDrawKinship;
    if (!entry.head.Enabled || (onlyLooks && starts)) return;
    if (!entry.entries.empty()) return PopUp(entry);
    story += "menu " + entry.head.Name() + " ";
    entry.head.Click();
}

void Monkey::Act() {
    --acts_;
    ++depth_;
    story += "(";
    const bool wasLocked = main.bTablesLocked, wasWaiting = main.bWaitCursor;
    if (onlyLooks) {
        if (dice_.OneIn(4)) {
            WorkWithTheTabs();
        } else {
            WorkWithATable();
        }
    } else {
        DoAnything();
    }
    EXPECT_EQ(main.bTablesLocked, wasLocked);
    EXPECT_EQ(main.bWaitCursor, wasWaiting);
    CheckTables();
    story += ")";
    --depth_;
}

void Monkey::DoAnything() {
    switch (dice_.Below(12)) {
        case 0:
        case 1:
            ClickAnything(main);
            break;
        case 2:
            main.cmdLoad.Click();
            break;
        case 3:
            // As a user does, who can do so only between reads, and as a script does.
            for (const TextView id : {"@I1@", "@I2@"}) {
                if (auto row = main.lvwIn.Find(id)) row->SetChecked(true);
            }
            if (dice_.OneIn(2)) {
                main.cmdFindPath.Click();
            } else {
                main.kinshipRequest.FindPathBetween("@I1@", "@I2@");
            }
            break;
        case 4:
            ChangeAnything(main);
            break;
        case 5:
            WorkWithTheTabs();
            break;
        case 6:
            Search();
            break;
        case 7:
            if (dice_.OneIn(4)) main.RequestAbort();
            break;
        default:
            WorkWithATable();
    }
}

void Monkey::ClickAnything(Window& window) {
    std::vector<const Command*> commands;
    for (const Control* control : window.Controls()) {
        const auto* command = dynamic_cast<const Command*>(control);
        if (command != nullptr && command->Enabled) commands.push_back(command);
    }
    const Command& command = *dice_.Pick(commands);
    story += command.Name() + " ";
    command.Click();
}

void Monkey::ChangeAnything(Window& window) {
    const TextView texts[] = {"", "0", "2", "in.ged", "out", "Dupont", "%1 %0"};
    Control& control = *dice_.Pick(window.Controls());
    if (!control.Enabled) return;
    story += "set " + control.Name() + " ";
    window.SetFocus(control);
    if (auto* check = dynamic_cast<CheckBox*>(&control)) check->SetChecked(!check->Checked());
    if (auto* option = dynamic_cast<OptionButton*>(&control)) option->SetValue(true);
    if (auto* text = dynamic_cast<TextBox*>(&control)) text->SetText(dice_.Pick(texts));
    if (auto* list = dynamic_cast<OrderedList*>(&control)) {
        list->Move(static_cast<std::size_t>(dice_.Below(3)), static_cast<std::size_t>(dice_.Below(3)));
    }
    if (auto* group = dynamic_cast<OptionGroup*>(&control)) {
        group->SetIndex(dice_.Below(static_cast<int>(group->Captions().size())));
    }
    if (auto* combo = dynamic_cast<ComboBox*>(&control)) {
        if (combo->IsSelector()) {
            combo->SetListIndex(dice_.Below(static_cast<int>(combo->Items().size())));
        } else {
            combo->SetText(dice_.Pick(texts));
        }
    }
}

void Monkey::WorkWithATable() {
    const auto tables = main.All();
    Table& table = *dice_.Pick(tables);
    story += table.Name() + " ";
    main.tabs.TableGotFocus(table);
    main.lists.HitTest(dice_.Place(table.Count()), dice_.Place(table.ColumnCount()));
    for (int i = dice_.Below(4); i > 0 && table.Count() > 0; --i) {
        Row row = table.Item(dice_.Below(table.Count()) + 1);
        row.SetSelected(dice_.OneIn(2));
        row.SetChecked(dice_.OneIn(2));
        table.SetCurrent(row);
    }
    const ColumnId column = ColumnId::OfSection(dice_.Below(table.ColumnCount()));
    ListKey key;
    switch (dice_.Below(9)) {
        case 0:
            ports_.desktop.shiftIsDown = dice_.OneIn(3);
            return main.lists.lvw_ColumnClick(table, table.ColumnAt(column));
        case 1:
            if (&table != &main.lvwOut) return table.MoveColumn(column, 1);
            if (dice_.OneIn(3)) return main.grouping.TakeOut(column);
            return main.grouping.Place(column, static_cast<std::size_t>(dice_.Below(4)));
        case 2:
            return main.lists.lvw_DblClick(table);
        case 3:
            main.lists.DragText();
            return;
        case 4:
            key.code = ListKey::Code::Letter;
            key.letter = static_cast<char>('A' + dice_.Below(26));
            key.ctrl = true;
            key.alt = dice_.OneIn(8);
            story += key.letter;
            return main.contextMenu.lvw_KeyDown(key);
        case 5:
            story += "filter ";
            return main.filters.Of(table).SetWanted(dice_.Pick(kFilters));
        case 6:
            if (const auto found = main.typeAhead.Type(table, dice_.Pick(kFilters), dice_.OneIn(2))) {
                table.SetCurrent(*found);
            }
            return main.columns.Header_RightClick();
        default:
            return main.contextMenu.lvw_MouseUp(MouseButton::Right);
    }
}

void Monkey::WorkWithTheTabs() {
    main.ShowTab(static_cast<Tab>(dice_.Below(9)));
    if (dice_.OneIn(2)) main.lists.SSTab1_DblClick();
    if (dice_.OneIn(3)) main.contextMenu.SSTab1_RightClick();
}

void Monkey::Search() {
    main.findDialog.Activate();
    ChangeAnything(main.findDialog);
    ClickAnything(main.findDialog);
}

void Monkey::TakeSettings(const frmMain& other) {
    const auto otherOf = [&](const auto& control) {
        return dynamic_cast<std::remove_reference_t<decltype(control)>*>(other.Find(control.Name()));
    };
    main.LeaveFocus();
    for (Control* control : main.Controls()) {
        if (auto* check = dynamic_cast<CheckBox*>(control)) check->SetChecked(otherOf(*check)->Checked());
        if (auto* group = dynamic_cast<OptionGroup*>(control)) group->SetIndex(otherOf(*group)->Index());
        if (auto* text = dynamic_cast<TextBox*>(control)) text->SetText(otherOf(*text)->Get());
        if (auto* list = dynamic_cast<OrderedList*>(control)) list->SetFromText("1,2,3");
        if (auto* combo = dynamic_cast<ComboBox*>(control)) {
            if (combo->IsSelector()) {
                combo->SetListIndex(otherOf(*combo)->ListIndex());
            } else {
                combo->SetText(otherOf(*combo)->Get());
            }
        }
    }
    for (Table* table : main.All()) {
        for (const Column& column : table->Columns()) table->MoveColumn(column.Index, column.Index.Index());
    }
}

std::vector<Text> Monkey::Findings() {
    std::vector<Text> findings;
    for (Table* table : {&main.lvwIn, &main.lvwFamily, &main.lvwFamilyXref, &main.lvwXref}) {
        for (const Text& row : RowsOf(*table)) {
            const bool hasIsland = table == &main.lvwIn;
            findings.push_back(Concat(
                {table->Name(), " ", TextView(row).substr(0, hasIsland ? row.rfind('|') : row.size())}));
        }
    }
    Text path;
    for (const Text& row : RowsOf(main.lvwKinship)) {
        path += Text(TextView(row).substr(row.find('|')));
        if (row.find("-999999") == Text::npos) continue;
        findings.push_back(std::exchange(path, {}));
    }
    std::sort(findings.begin(), findings.end());
    return findings;
}

/// Whether a filter must show a row: each word stands in a column that is shown.
bool IsWanted(const Table& table, const Row& row, TextView wanted) {
    const Text form = Concat({ComparisonForm(wanted), " "});
    for (std::size_t start = 0, end = 0; (end = form.find(' ', start)) != Text::npos; start = end + 1) {
        const Text word = form.substr(start, end - start);
        const bool isThere = std::ranges::any_of(table.Columns(), [&](const Column& column) {
            return column.IsShown() && ComparisonForm(row.Cell(column.Index)).find(word) != Text::npos;
        });
        if (!isThere && !word.empty()) return false;
    }
    return true;
}

void Monkey::CheckTables() {
    for (Table* table : main.All()) {
        RowFilter& filter = main.filters.Of(*table);
        filter.Sync();
        std::int32_t marked = 0, shown = 0;
        for (std::int32_t i = 1; i <= table->Count(); ++i) {
            const Row row = table->Item(i);
            marked += row.Marked() ? 1 : 0;
            const std::int32_t place = filter.PlaceOf(i);
            ASSERT_EQ(place, IsWanted(*table, row, filter.Wanted()) ? shown : -1)
                << table->Name() << " " << filter.Wanted();
            if (place < 0) continue;
            ASSERT_EQ(filter.RowAt(shown), i);
            ++shown;
        }
        ASSERT_EQ(table->MarkedCount(), marked) << table->Name();
        ASSERT_EQ(filter.Count(), shown) << table->Name();
        for (std::int32_t i = 1; i <= table->Count(); ++i) {
            const Row row = table->Item(i);
            const Text key = row.Key();
            ASSERT_EQ(row.Index(), i) << table->Name();
            ASSERT_TRUE(key.empty() || table->Item(key) == row) << table->Name() << " " << key;
        }
    }
}

int Setting(const char* name, int otherwise) {
    const char* text = std::getenv(name);
    return text == nullptr ? otherwise : std::atoi(text);
}

TEST(Torture, LookingAroundMeanwhileChangesNoResult) {
    const int first = Setting("SWIFTROLL_FIRST_SEED", 1), seeds = Setting("SWIFTROLL_SEEDS", kDefaultSeeds);
    for (int seed = first; seed < first + seeds; ++seed) {
        Monkey restless(static_cast<std::uint32_t>(seed)), quiet(static_cast<std::uint32_t>(seed));
        SCOPED_TRACE(seed);
        restless.onlyLooks = quiet.onlyLooks = true;
        restless.LookAround(kActs);
        quiet.LookAround(0);
        restless.CheckAtRest();
        ASSERT_EQ(restless.Findings(), quiet.Findings()) << restless.story;
        ASSERT_FALSE(testing::Test::HasFailure()) << restless.story << "\n" << restless.file;
    }
}

TEST(Torture, WhateverRunsMeanwhileTheProgramStaysWhole) {
    const int first = Setting("SWIFTROLL_FIRST_SEED", 1), seeds = Setting("SWIFTROLL_SEEDS", kDefaultSeeds);
    for (int seed = first; seed < first + seeds; ++seed) {
        Monkey tortured(static_cast<std::uint32_t>(seed)), fresh(static_cast<std::uint32_t>(seed));
        SCOPED_TRACE(seed);
        ASSERT_NO_THROW(tortured.Rage()) << tortured.story << "\n" << tortured.file;
        tortured.CheckAtRest();
        tortured.TakeSettings(fresh.main);
        ASSERT_EQ(tortured.Result(), fresh.Result()) << tortured.story;
        tortured.CheckTables();
        ASSERT_FALSE(testing::Test::HasFailure()) << tortured.story << "\n" << tortured.file;
    }
}

}  // namespace
}  // namespace swiftroll::test
