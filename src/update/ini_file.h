#pragma once

#include <boost/unordered/unordered_flat_map.hpp>

#include "app/ports.h"

namespace swiftroll {

/// A file of sections "[name]" with lines "key=value". Names of sections and keys are compared without case;
/// of equal ones the first counts. Blanks around a value, and one pair of quotes, do not belong to it.
class cIniFile {
  public:
    explicit cIniFile(Files& files, Text separator) : files_(files), separator_(std::move(separator)) {}

    /// Takes the file `sFile` of the folder `sDir`.
    void CreateIni(TextView sDir, TextView sFile);
    const Text& INIFile() const { return file_; }
    void SetINIFile(TextView file);

    /// The value of a key, at most 999 characters of it; empty when there is none, or no file. The file is
    /// read once, and no more than its first 16 MB.
    Text GetFile(TextView sSection, TextView sKey);
    /// Writes a key into its section, which is made when missing; the rest of the file stays as it is.
    /// @throws Failure FileAccess
    void WriteFile(TextView sSection, TextView sKey, TextView sValue);

  private:
    void Load();
    void ReadLines(TextView content);
    Text Content();

    Files& files_;
    Text separator_;
    Text file_;
    bool isLoaded_ = false;
    boost::unordered_flat_map<Text, Text> values_;  // by section and key in capitals
};

}  // namespace swiftroll
