#pragma once

#include "app/application.h"
#include "charset/decoder.h"
#include "check/charset_check.h"
#include "check/file_records.h"
#include "check/findings.h"
#include "gedcom/gedcom_line.h"
#include "gedcom/line_scanner.h"

namespace swiftroll::modCheck {

/// The one walk through the lines of a file. It finds what a line shows by itself, and collects for the other
/// rules where records and links stand.
class FilePass {
  public:
    /// `decoder` gives pieces of the file that are shown as Windows-1252; none shows them as they are.
    FilePass(Application& app, charset::Decoder* decoder, Findings& findings, FileRecords& records)
        : app_(app), decoder_(decoder), findings_(findings), records_(records) {}

    /// Reads the file, up to the line at which a read stops too. The progress is shown and events are let in
    /// at every record; false when the user stopped it. @throws Failure FileAccess
    bool Run(std::unique_ptr<File> file);
    /// The character set that the file declares.
    const DeclaredCharset& Declared() const { return declared_; }

  private:
    enum class Context : std::uint8_t { Other, Person, Family };
    enum class Event : std::uint8_t { Other, Birth, Death, Marriage };

    /// False at the line that ends a read.
    bool TakeLine();
    /// Tells what is wrong with the level of a line and before it.
    void CheckLevel(TextView whole);
    void BeginRecord();
    void BeginPerson();
    void BeginFamily();
    /// Whether the identifier of the record that begins is new; what is wrong with it is told.
    bool HasOwnIdentifier(bool needsOne);
    void TakeSubLine();
    void AddLink(LinkKind kind);
    void TakeReference();
    void TakeCharset();
    void TakeDate();
    void CheckEnd(TextView unread);
    void Tell(Rule rule, TextView text);
    Text Shown(TextView bytes) const;

    Application& app_;
    charset::Decoder* decoder_;
    Findings& findings_;
    FileRecords& records_;
    modReadGedcom::GedcomLine line_;
    std::uint32_t number_ = 0;  // of the line
    int previousLevel_ = -1;
    bool hasTrailer_ = false;
    DeclaredCharset declared_;
    // The record that the line belongs to.
    TextRef id_;
    Context context_ = Context::Other;
    Event event_ = Event::Other;
};

}  // namespace swiftroll::modCheck
