#include "console.h"

#include <cstdio>
#include <string>

#include "platform/interrupt.h"
#include "text/code_page.h"
#include "text/edit.h"
#include "text/literal.h"

namespace swiftroll::cli {
namespace {

constexpr auto kDrawingStep = std::chrono::milliseconds(100);
constexpr int kBarWidth = 20;

/// At most `width` characters of a UTF-8 text.
std::string_view Clipped(std::string_view utf8, int width) {
    std::size_t length = 0;
    for (int i = 0; i < width && length < utf8.size(); ++i) {
        length += std::max<std::size_t>(FirstUtf8Char(utf8.substr(length)).length, 1);
    }
    return utf8.substr(0, length);
}

}  // namespace

void PrintError(TextView text) {
    const std::string line = ToUtf8(ReplaceAll(text, kLineEnd, "\n")) + "\n";
    std::fwrite(line.data(), 1, line.size(), stderr);
}

BoxAnswer HeadlessDialogs::Show(const MessageBox& box) {
    if (box.topic == BoxTopic::Recalculation) return recalculates ? BoxAnswer::Yes : BoxAnswer::No;
    if (beforeBox) beforeBox();
    PrintError(Concat({box.title, " : ", box.text}));
    switch (box.topic) {
        case BoxTopic::Charset:
        case BoxTopic::LineError:
            return arguments_.strict ? BoxAnswer::Cancel : BoxAnswer::Ok;
        case BoxTopic::WriteAllRows:
            return writesMarkedOnly ? BoxAnswer::No : BoxAnswer::Yes;
        case BoxTopic::OverwriteFile:
            return arguments_.overwrite ? BoxAnswer::Yes : BoxAnswer::Cancel;
        case BoxTopic::LargeFile:
            if (arguments_.large) return BoxAnswer::Yes;
            PrintError("--grand l'écrit quand même."_t);
            hasRefusal_ = true;
            return BoxAnswer::No;
        case BoxTopic::UnequalSizes:
            return BoxAnswer::No;
        case BoxTopic::UnreadableInput:
            inputIsUnreadable_ = true;
            break;
        case BoxTopic::Recalculation:
        case BoxTopic::Message:
            break;
    }
    hasRefusal_ = true;
    return BoxAnswer::Ok;
}

bool HeadlessDialogs::AskFile(const FileRequest&, Text& chosen) {
    chosen = outputFile;
    return true;
}

void TerminalProgress::StatusChanged() {
    if (!enabled_ || status_ == nullptr) return;
    const auto now = std::chrono::steady_clock::now();
    if (now - lastDrawing_ < kDrawingStep) return;
    lastDrawing_ = now;
    Draw();
}

void TerminalProgress::Draw() {
    const double percent = status_->ProgressBar1.Value();
    const auto filled = static_cast<std::size_t>(percent * kBarWidth / 100);
    const Text& message = status_->pnlMessage.Get();
    std::string line = "\r[" + std::string(filled, '#') + std::string(kBarWidth - filled, ' ') + "] ";
    char number[8];
    std::snprintf(number, sizeof number, "%3d %% ", static_cast<int>(percent));
    line += number;
    const std::string text = ToUtf8(message.empty() ? status_->pnlLines.Get() : message);
    line += Clipped(text, platform::TerminalColumns() - static_cast<int>(line.size()));
    line += "\x1b[K";
    std::fwrite(line.data(), 1, line.size(), stderr);
    drawn_ = true;
}

void TerminalProgress::Wipe() {
    if (drawn_) std::fputs("\r\x1b[K", stderr);
    drawn_ = false;
}

void InterruptPump::Yield() {
    if (told_ || app_ == nullptr) return;
    if (!platform::WasInterrupted() && !(stopWhen && stopWhen())) return;
    told_ = true;
    app_->RequestAbort();
}

}  // namespace swiftroll::cli
