#pragma once

#include "app/controls.h"

namespace swiftroll::modCommon {

/// Names that a history holds at most.
inline constexpr std::size_t kLongestHistory = 10;

/// Puts the trimmed text of a combo on top of its history, of ten names at most that differ by more than
/// case, and picks it. An empty text changes nothing.
void cboAdd(ComboBox& cbo);

}  // namespace swiftroll::modCommon
