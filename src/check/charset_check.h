#pragma once

#include <optional>

#include "charset/charset.h"
#include "check/findings.h"

namespace swiftroll::modCheck {

/// The value of the first CHAR line of a file; line 0 for none.
struct DeclaredCharset {
    std::uint32_t line = 0;
    Text name = {};
};

/// Tells the character set that a file declares, the one that a read took it in, and how many characters the
/// tables have in other letters. `found` is nothing when a read converts none.
void CheckCharset(const std::optional<charset::FoundCharset>& found, const DeclaredCharset& declared,
                  Findings& findings);

}  // namespace swiftroll::modCheck
