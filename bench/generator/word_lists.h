#pragma once

#include <string>
#include <vector>

namespace bench {

/// Words in Windows-1252, the most frequent first where frequency matters.
std::vector<std::string> MaleGivenNames();
std::vector<std::string> FemaleGivenNames();
std::vector<std::string> Occupations();
std::vector<std::string> NoteSentences();

}  // namespace bench
