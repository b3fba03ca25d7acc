#include "writers/xml.h"

#include <algorithm>

#include "text/edit.h"
#include "text/fold.h"
#include "writers/index.h"
#include "writers/xml_text.h"

namespace swiftroll::modGenFileFromModel {
namespace {

/// A file whose failing steps are skipped.
class LenientFile : public File {
  public:
    LenientFile(Files& files, TextView name) {
        Try([&] { files.Delete(name); });
        Try([&] { file_ = files.Open(name, Files::Mode::Write); });
        complete_ = file_ != nullptr;
    }
    std::size_t Read(char*, std::size_t) override { return 0; }
    std::int64_t Length() override { return 0; }
    void Write(TextView bytes) override {
        if (file_) complete_ &= Try([&] { file_->Write(bytes); });
    }
    void Close() override {
        if (file_) complete_ &= Try([&] { file_->Close(); });
    }
    bool IsComplete() const { return complete_; }

  private:
    template <class Step>
    static bool Try(Step step) {
        try {
            step();
            return true;
        } catch (const Failure&) {
            return false;
        }
    }
    std::unique_ptr<File> file_;
    bool complete_ = true;
};

/// The first line, and the one that names the stylesheet, if there is one.
Text Prolog(bool isStrict, TextView sXslName) {
    Text lines = Concat(
        {"<?xml version=\"1.0\" encoding=\"", isStrict ? "windows-1252" : "ISO-8859-1", "\"?>", kLineEnd});
    if (sXslName.empty()) return lines;
    lines += isStrict ? "<?xml-stylesheet" : "<?xml:stylesheet";
    lines +=
        Concat({" type=\"text/xsl\" href=\"", isStrict ? XmlAddress(sXslName) : sXslName, "\"?>", kLineEnd});
    return lines;
}

}  // namespace

PerPosition<Text> MakeColumnTags(const ArrangedTables& tables) {
    PerPosition<Text> tags;
    const Positions::OfTable& positions = tables.positions.Of(tables.lvwOut);
    for (std::int16_t position = 1; position <= tables.positions.iPosNumber; ++position) {
        tags[position] = ComparisonForm(tables.lvwOut.ColumnAt(positions.iColAtPos[position]).Caption);
        std::erase(tags[position], ' ');
    }
    return tags;
}

bool WriteXML(const ListSource& source, TextView sOutFile, TextView sXslName, bool bSelectedOnly) {
    ArrangedTables& tables = source.tables;
    const PerPosition<Text> sColumnTag = MakeColumnTags(tables);
    LenientFile file(source.files, sOutFile);
    const bool isStrict = source.options.chkStrictXml.Checked();
    Text conforming;
    file.Write(Concat({Prolog(isStrict, sXslName), "<SwiftRoll>", kLineEnd}));
    AnchorWriter anchors(source);
    for (std::int32_t i = 1; i <= tables.lvwOut.Count(); ++i) {
        const Row row = tables.lvwOut.Item(i);
        if (bSelectedOnly && !row.Marked()) continue;
        file.Write(Concat({" <INDI>", kLineEnd}));
        anchors.PutINDEX(file, row, true);
        for (std::int16_t position = 1; position <= tables.positions.iPosNumber; ++position) {
            const TextView tag = sColumnTag[position];
            TextView cell = row.Cell(tables.positions.Of(tables.lvwOut).iColAtPos[position]);
            if (isStrict) cell = conforming = XmlText(cell);
            file.Write(Concat({"  <", tag, ">", cell, "</", tag, ">", kLineEnd}));
        }
        file.Write(Concat({" </INDI>", kLineEnd}));
    }
    file.Write(Concat({"</SwiftRoll>", kLineEnd}));
    file.Close();
    return file.IsComplete();
}

}  // namespace swiftroll::modGenFileFromModel
