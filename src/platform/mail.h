#pragma once

#include "app/ports.h"

namespace swiftroll::platform {

/// The mail program of the desktop; a draft that mail programs open where there is none.
class DesktopMail : public Mail {
  public:
    /// `events` are handled while the mail program starts.
    explicit DesktopMail(EventPump& events) : events_(events) {}
    bool Compose(const MailMessage& message, TextView draft) override;

  private:
    EventPump& events_;
};

/// A message as a file: RFC 5322 with its attachments, still to be sent.
/// @throws Failure FileAccess when an attachment cannot be read
std::string DraftOf(const MailMessage& message);

}  // namespace swiftroll::platform
