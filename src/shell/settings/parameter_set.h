#pragma once

#include "app/application.h"

namespace swiftroll::modCommon {

/// Options under names that the user gives: picking a name in a combo loads them, a button saves them. What
/// was never saved under a name keeps its present value when the name is picked.
class ParameterSet {
  public:
    /// One option: how it stands in the store. `set` throws Failure when the text means nothing.
    struct Field {
        TextView key;
        std::function<Text()> get;
        std::function<void(TextView text)> set;
    };
    /// What is done with the section of a set beyond its fields.
    using WithSection = std::function<void(const Text& section)>;
    struct Parts {
        const char* loadName;  // of the procedures, for the error trail
        const char* saveName;
        TextView section;
        std::vector<Field> fields = {};
        WithSection loadMore = {}, saveMore = {};
        /// For every name in the combo, when one of them is saved.
        WithSection tidy = {};
    };
    /// Binds the events of the combo and of the button.
    ParameterSet(Application& app, ComboBox& combo, Command& save, Parts parts);
    ParameterSet(const ParameterSet&) = delete;
    ParameterSet& operator=(const ParameterSet&) = delete;

  private:
    Text SetKey(TextView name) const;
    Text StoredKey(TextView name) const;
    Text SectionOf(TextView name) const;
    void Load();
    void LoadFields();
    void ShowName(TextView name);
    void Save();
    void SaveFields(TextView name);

    Application& app_;
    ComboBox& combo_;
    Parts parts_;
    bool bComboClick_ = false;  // while a pick from the list is handled
};

/// Fields that are one control each.
ParameterSet::Field TextField(TextView key, TextBox& box);
ParameterSet::Field NumberField(TextView key, TextBox& box);
ParameterSet::Field FlagField(TextView key, CheckBox& box);
ParameterSet::Field OptionField(TextView key, OptionGroup& group, int member);
ParameterSet::Field ColourField(TextView key, ColourButton& button);
ParameterSet::Field CaptionField(TextView key, Label& label);

}  // namespace swiftroll::modCommon
