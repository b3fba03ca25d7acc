#pragma once

#include "app/controls.h"
#include "app/ports.h"

namespace bench {

/// Nobody to ask and nobody to tell: boxes are answered with OK, and the recalculation with No.
class QuietDialogs : public swiftroll::Dialogs {
  public:
    swiftroll::BoxAnswer Show(const swiftroll::MessageBox& box) override {
        return box.topic == swiftroll::BoxTopic::Recalculation ? swiftroll::BoxAnswer::No
                                                               : swiftroll::BoxAnswer::Ok;
    }
    void ShowModal(swiftroll::Window& window) override { window.Hide(); }
    bool AskFile(const FileRequest&, swiftroll::Text&) override { return false; }
    bool AskColour(std::uint32_t&) override { return false; }
    bool AskFont(swiftroll::CellFont&) override { return false; }
    void PopUp(const swiftroll::Menu&) override {}
};

class QuietStatus : public swiftroll::StatusObserver {
  public:
    void StatusChanged() override {}
};

/// No events to pump.
class QuietPump : public swiftroll::EventPump {
  public:
    void Yield() override {}
    void YieldFor(int, const bool&) override {}
};

}  // namespace bench
