#pragma once

#include "app/application.h"

namespace swiftroll {

/// The About window, without a screen.
class frmSplash : public Window {
  public:
    explicit frmSplash(Application& app);

    Label lblVersion, lblTitle, lblDescription;
    /// The maker's addresses: a click opens the web page, or a new mail.
    Command lblWeb, lblMail;
};

}  // namespace swiftroll
