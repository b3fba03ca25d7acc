#pragma once

#include <string>
#include <string_view>

#include "decimal.h"

namespace bench {

/// The lines of a GEDCOM file, all ended by CR LF.
class GedcomLines {
  public:
    explicit GedcomLines(std::string& out) : out_(out) {}

    void Record(char kind, int number, std::string_view tag) {
        BeginRecord(kind, number, tag);
        out_.append("\r\n");
    }

    void Line(char level, std::string_view tag) {
        Begin(level, tag);
        out_.append("\r\n");
    }

    void Line(char level, std::string_view tag, std::string_view value) {
        Begin(level, tag);
        out_.append(" ").append(value).append("\r\n");
    }

    void Reference(char level, std::string_view tag, char kind, int number) {
        Begin(level, tag);
        out_.push_back(' ');
        AppendReference(kind, number);
        out_.append("\r\n");
    }

    /// For values that are composed in place between the two calls.
    std::string& BeginValue(char level, std::string_view tag) {
        Begin(level, tag);
        out_.push_back(' ');
        return out_;
    }
    std::string& BeginRecordValue(char kind, int number, std::string_view tag) {
        BeginRecord(kind, number, tag);
        out_.push_back(' ');
        return out_;
    }
    void EndValue() { out_.append("\r\n"); }

  private:
    void BeginRecord(char kind, int number, std::string_view tag) {
        out_.append("0 ");
        AppendReference(kind, number);
        out_.append(" ").append(tag);
    }

    void Begin(char level, std::string_view tag) {
        out_.push_back(level);
        out_.push_back(' ');
        out_.append(tag);
    }

    void AppendReference(char kind, int number) {
        out_.push_back('@');
        out_.push_back(kind);
        AppendNumber(out_, number);
        out_.push_back('@');
    }

    std::string& out_;
};

}  // namespace bench
