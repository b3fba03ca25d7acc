#pragma once

#include <gtest/gtest.h>

#include "list/list_fixture.h"

namespace swiftroll::test {

constexpr int kHtml = 0, kText = 1, kXml = 2;

/// A model of the format with nothing but its two rows.
inline constexpr TextView kBareHtml = "head<tr><td>%ELEMENT%</td></tr><tr><td>%ELEMENT%</td></tr>tail";

/// Writes the list by the command, as a user does.
struct Writing : testing::Test, TestMain {
    Writing() { main.chkGenerXSL.SetChecked(false); }

    /// Individuals of these surnames, one for each, and the list of them by surname.
    void ListSurnames(const Texts& names) {
        Arrange(main.lvwOut, {"LastName"});
        for (std::size_t i = 0; i < names.size(); ++i) {
            const Text id = Concat({"@", Decimal(static_cast<std::int64_t>(i)), "@"});
            AddIndividual(main, id, {{"LastName", names[i]}});
        }
        main.cmdCalcOutput.Click();
    }
    /// The file "out/list" with the extension of the format. `rows` answers which rows go out.
    Text Write(int format, TextView model, BoxAnswer rows = BoxAnswer::Yes) {
        main.cboSaveSwift.SetListIndex(format);
        files.contents["model"] = model;
        main.cboFileModel.SetText("model");
        const Text name = Concat({"out/list.", main.txtOutExtension[static_cast<std::size_t>(format)].Get()});
        dialogs.boxes.clear();
        dialogs.answers = {rows};
        dialogs.files = {name};
        main.cmdSaveSwift.Click();
        return files.Exists(name) ? files.contents[name] : Text("no file");
    }
    /// The texts of the boxes of the last writing that ask nothing.
    Texts Told() const {
        Texts texts;
        for (const MessageBox& box : dialogs.boxes) {
            if (box.topic == BoxTopic::Message) texts.push_back(box.text);
        }
        return texts;
    }
};

}  // namespace swiftroll::test
