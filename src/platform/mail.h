#pragma once

#include "app/ports.h"

namespace swiftroll::platform {

/// The mail program of the desktop; a draft that mail programs open where there is none.
class DesktopMail : public Mail {
  public:
    bool Compose(const MailMessage& message, TextView draft) override;
};

/// A message as a file: RFC 5322 with its attachments, still to be sent.
/// @throws Failure FileAccess when an attachment cannot be read
std::string DraftOf(const MailMessage& message);

}  // namespace swiftroll::platform
