#pragma once

#include <string>

#include "random.h"
#include "vocabulary.h"

namespace bench {

/// Appends the value of a NOTE line or record of one to four sentences, and the CONT and CONC lines that
/// carry on, at `level`. The last line is ended.
void AppendNoteText(std::string& out, char level, const Vocabulary& vocabulary, Random& random);

}  // namespace bench
