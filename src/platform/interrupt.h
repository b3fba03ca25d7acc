#pragma once

namespace swiftroll::platform {

/// From now on the first Ctrl-C is noted and the second one ends the program at once.
void CatchInterrupts();
/// Whether Ctrl-C was pressed.
bool WasInterrupted();

/// Whether standard error is a terminal, and how many columns it has (80 when it does not tell).
bool ErrorIsTerminal();
int TerminalColumns();

}  // namespace swiftroll::platform
