#include "shell/saved_settings.h"

#include "text/edit.h"

namespace swiftroll {

void SavedSettings::GetAllControls() { shown_ = modCommon::GetAllControls(app_, windows_); }

void SavedSettings::SaveAllControls() { modCommon::SaveAllControls(app_, windows_, shown_); }

void SavedSettings::ShowNotice() {
    if (const Text notice = app_.ports.settings.Notice(); !notice.empty()) app_.pnlMessage.Set(notice);
}

void SavedSettings::RepeatNotice() {
    const Text notice = app_.ports.settings.Notice(), message = app_.pnlMessage.Get();
    if (notice.empty() || message == notice) return;
    app_.pnlMessage.Set(message.empty() ? notice : Concat({notice, " ", message}));
}

}  // namespace swiftroll
