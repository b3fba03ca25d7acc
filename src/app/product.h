#pragma once

#include "text/edit.h"

namespace swiftroll {

/// What the program is, and who stands behind it.
struct Product {
    const Text sProduct{"SwiftRoll"};
    const Text sVersion{SWIFTROLL_VERSION};
    /// The maker's site, without a closing "/"; what stands there by default is no site.
    Text sWebAddress{SWIFTROLL_WEB};
    const Text sMailAddress{SWIFTROLL_MAIL};

    /// Whether the program was built for a site that can be asked.
    bool HasWebSite() const { return !sWebAddress.empty() && sWebAddress != SWIFTROLL_NO_WEB; }
    /// Caption of the main window, which begins the title of every box.
    Text MainCaption() const { return Concat({sProduct, " (v", sVersion, ")"}); }
};

}  // namespace swiftroll
