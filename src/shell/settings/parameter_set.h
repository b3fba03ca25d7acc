#pragma once

#include "app/application.h"

namespace swiftroll::modCommon {

/// Options under names that the user gives: picking a name in a combo loads them, a button saves them. What
/// was never saved under a name keeps its present value when the name is picked.
class ParameterSet {
  public:
    /// How a text stands in the store: as the control gives it, or as the number that it tells.
    enum class Form { AsItIs, Number };
    /// One option, or one button of a group of them.
    struct Field {
        TextView key;
        Control& control;
        Form form = Form::AsItIs;
        int button = 0;
        Text Get() const { return control.ToTexts()[static_cast<std::size_t>(button)]; }
        /// @throws Failure when the text means nothing
        void Set(TextView text) const;
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
        /// Told the name of a set that was saved.
        std::function<void(const Text& name)> saved = {};
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

}  // namespace swiftroll::modCommon
