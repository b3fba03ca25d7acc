#include "platform/mail.h"

#include <fstream>
#include <sstream>

#include "platform/launcher.h"
#include "text/code_page.h"
#include "text/edit.h"
#include "text/failure.h"

namespace swiftroll::platform {
namespace {

/// Base64 in lines of 76 characters.
std::string Base64(std::string_view bytes) {
    constexpr char kDigits[] = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
    constexpr std::size_t kLine = 57;  // bytes that fill a line
    std::string text;
    for (std::size_t i = 0; i < bytes.size(); i += 3) {
        if (i > 0 && i % kLine == 0) text += "\r\n";
        std::uint32_t group = 0;
        const std::size_t count = std::min<std::size_t>(3, bytes.size() - i);
        for (std::size_t j = 0; j < 3; ++j) {
            group = group << 8 | (j < count ? static_cast<unsigned char>(bytes[i + j]) : 0u);
        }
        for (std::size_t j = 0; j < 4; ++j) text += j <= count ? kDigits[group >> (18 - 6 * j) & 63] : '=';
    }
    return text;
}

/// A word of a header, with its accents.
std::string EncodedWord(TextView text) { return "=?UTF-8?B?" + Base64(ToUtf8(text)) + "?="; }

std::string FileContent(TextView file) {
    std::ifstream stream(FileNameFromText(file), std::ios::binary);
    std::ostringstream content;
    content << stream.rdbuf();
    if (!stream) throw Failure(FailureKind::FileAccess, file);
    return content.str();
}

std::string BaseName(TextView file) { return FileNameFromText(file.substr(file.find_last_of("/\\") + 1)); }

/// Starts the mail program of the desktop; false when there is none, or when it says that it failed.
bool OpenMailProgram(const MailMessage& message, EventPump& events) {
    std::vector<std::string> command = {
        "xdg-email", "--utf8", "--subject", ToUtf8(message.subject), "--body", ToUtf8(message.body)};
    for (const Text& file : message.attachments) {
        command.emplace_back("--attach");
        command.push_back(FileNameFromText(file));
    }
    command.push_back(ToUtf8(message.address));
    return Launch(std::move(command), events) == 0;
}

}  // namespace

std::string DraftOf(const MailMessage& message) {
    const std::string boundary = "=_SwiftRoll_Rapport_=";
    std::string draft = "To: " + EncodedWord(message.recipient) + " <" + ToUtf8(message.address) + ">\r\n";
    draft += "Subject: " + EncodedWord(message.subject) + "\r\n";
    draft += "X-Unsent: 1\r\nMIME-Version: 1.0\r\n";
    draft += "Content-Type: multipart/mixed; boundary=\"" + boundary + "\"\r\n\r\n";
    draft += "--" + boundary + "\r\nContent-Type: text/plain; charset=UTF-8\r\n";
    draft += "Content-Transfer-Encoding: base64\r\n\r\n" + Base64(ToUtf8(message.body)) + "\r\n";
    for (const Text& file : message.attachments) {
        draft += "--" + boundary + "\r\nContent-Type: application/octet-stream\r\n";
        draft += "Content-Disposition: attachment; filename=\"" + BaseName(file) + "\"\r\n";
        draft += "Content-Transfer-Encoding: base64\r\n\r\n" + Base64(FileContent(file)) + "\r\n";
    }
    return draft + "--" + boundary + "--\r\n";
}

bool DesktopMail::Compose(const MailMessage& message, TextView draft) {
    if (OpenMailProgram(message, events_)) return false;
    const std::string text = DraftOf(message);
    std::ofstream file(FileNameFromText(draft), std::ios::binary | std::ios::trunc);
    file.write(text.data(), static_cast<std::streamsize>(text.size()));
    file.close();
    if (!file) throw Failure(FailureKind::FileAccess, draft);
    return true;
}

}  // namespace swiftroll::platform
