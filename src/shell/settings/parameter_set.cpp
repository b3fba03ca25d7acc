#include "shell/settings/parameter_set.h"

#include "shell/settings/history.h"
#include "text/edit.h"
#include "text/numbers.h"

namespace swiftroll::modCommon {
namespace {

constexpr TextView kNameKey = "Name";

}  // namespace

ParameterSet::ParameterSet(Application& app, ComboBox& combo, Command& save, Parts parts)
    : app_(app), combo_(combo), parts_(std::move(parts)) {
    combo.OnClick = [this] {
        bComboClick_ = true;
        Load();
        bComboClick_ = false;
    };
    combo.OnLostFocus = [this] { Load(); };
    save.Operation = [this] { Save(); };
}

void ParameterSet::Field::Set(TextView text) const {
    control.FromTexts(
        {.texts = {form == Form::Number ? Decimal(ToLong(text)) : Text(text)}, .button = button});
}

/// A "\" would begin a sub-section.
Text ParameterSet::SetKey(TextView name) const { return Concat({"\\", ReplaceAll(name, "\\", "*")}); }

/// Names are the same whatever their capitals; the key has those with which the set was saved.
Text ParameterSet::StoredKey(TextView name) const {
    const Text wanted = SetKey(name);
    Text key = wanted;
    for (const auto& [saved, value] : app_.ports.settings.GetAllSettings(parts_.section)) {
        if (saved == wanted) return wanted;
        if (SameButCase(saved, wanted)) key = saved;
    }
    return key;
}

Text ParameterSet::SectionOf(TextView name) const { return Concat({parts_.section, StoredKey(name)}); }

void ParameterSet::Load() {
    app_.trail.Guard(
        parts_.loadName,
        [&] {
            if (combo_.Get().empty()) return;
            // This picks the name, which loads the set a first time.
            if (!bComboClick_) cboAdd(combo_);
            LoadFields();
        },
        [&] { return combo_.Get(); });
}

void ParameterSet::LoadFields() {
    SettingsStore& store = app_.ports.settings;
    const Text typed = combo_.Get(), section = SectionOf(typed);
    const Text name = store.GetSetting(section, kNameKey, typed);
    if (name != typed) ShowName(name);
    for (const Field& field : parts_.fields) {
        const Text present = field.Get();
        const Text stored = store.GetSetting(section, field.key, present);
        if (stored != present) field.Set(stored);
    }
    if (parts_.loadMore) parts_.loadMore(section);
}

/// The capitals with which the set was saved come back, in the list too.
void ParameterSet::ShowName(TextView name) {
    const int picked = combo_.ListIndex();
    if (picked < 0 || !SameButCase(combo_.Get(), name)) return combo_.SetText(name);
    combo_.SetItem(picked, name);
}

void ParameterSet::Save() {
    app_.trail.Guard(
        parts_.saveName,
        [&] {
            bool isSaved = false;
            app_.ports.settings.Together([&] {
                for (const Text& item : combo_.Items()) {
                    if (parts_.tidy) parts_.tidy(SectionOf(item));
                    if (item != combo_.Get()) continue;
                    SaveFields(item);
                    isSaved = true;
                }
            });
            if (isSaved && parts_.saved) parts_.saved(combo_.Get());
        },
        [&] { return combo_.Get(); });
}

void ParameterSet::SaveFields(TextView name) {
    SettingsStore& store = app_.ports.settings;
    const Text section = SectionOf(name);
    store.SaveSetting(parts_.section, StoredKey(name), name);
    store.SaveSetting(section, kNameKey, name);
    for (const Field& field : parts_.fields) store.SaveSetting(section, field.key, field.Get());
    if (parts_.saveMore) parts_.saveMore(section);
}

}  // namespace swiftroll::modCommon
