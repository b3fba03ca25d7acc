#include "writers/output_format.h"

#include <algorithm>

#include "text/edit.h"
#include "text/literal.h"
#include "writers/write_model.h"
#include "writers/xml.h"
#include "writers/xml_text.h"

namespace swiftroll::modGenFileFromModel {
namespace {

Written WriteThroughModel(const ListSource& source, const OutputFormat& format, const WriteRequest& request) {
    const bool isWhole =
        WriteFileFromModel(source, format, request.sOutFile, request.sModelFile, request.bSelectedOnly);
    return isWhole ? Written::Whole : Written::FailureTold;
}

Written WriteWithStylesheet(const ListSource& source, const OutputFormat& format,
                            const WriteRequest& request) {
    bool hasStylesheet = true;
    if (!request.sXslFile.empty()) {
        ListSource described = source;
        if (source.options.chkStrictXml.Checked())
            described.origin.sGedcom = AllowedInXml(source.origin.sGedcom);
        hasStylesheet = WriteFileFromModel(described, format, request.sXslFile, request.sModelFile,
                                           request.bSelectedOnly);
    }
    if (!WriteXML(source, request.sOutFile, FileNamePart(request.sXslFile), request.bSelectedOnly))
        return Written::FailureUntold;
    return hasStylesheet ? Written::Whole : Written::FailureTold;
}

constexpr OutputFormat kFormats[] = {
    {.name = "HTML",
     .caption = "HTML",
     .word = "html",
     .outExtension = "html",
     .modelExtension = "html",
     .model = OutFormat::Html,
     .hasStylesheet = false,
     .hasIndex = true,
     .sEmptyCell = "&nbsp;",
     .write = WriteThroughModel},
    {.name = "Texte",
     .caption = "Texte ",
     .word = "texte",
     .outExtension = "txt",
     .modelExtension = "txt",
     .model = OutFormat::Text,
     .hasStylesheet = false,
     .hasIndex = false,
     .sEmptyCell = " ",
     .write = WriteThroughModel},
    {.name = "XML",
     .caption = "XML",
     .word = "xml",
     .outExtension = "xml",
     .modelExtension = "xsl",
     .model = OutFormat::Xsl,
     .hasStylesheet = true,
     .hasIndex = true,
     .sEmptyCell = "<xsl:text>&#xA0;</xsl:text>",
     .write = WriteWithStylesheet},
};

/// The format of a list that nobody has chosen a format for.
constexpr TextView kFirstChoice = "texte";

static_assert(kFormats[kHtmlFormat].word == "html");
static_assert(std::ranges::count(kFormats, true, &OutputFormat::hasStylesheet) == 1,
              "one box asks for the stylesheet");
static_assert(std::ranges::count(kFormats, kFirstChoice, &OutputFormat::word) == 1);

}  // namespace

std::span<const OutputFormat> OutputFormats() { return kFormats; }

int StylesheetFormat() {
    return static_cast<int>(std::ranges::find(kFormats, true, &OutputFormat::hasStylesheet) - kFormats);
}

std::vector<FormatOption> FormatOptions() {
    std::vector<FormatOption> options;
    for (const OutputFormat& format : kFormats) {
        options.push_back({Text(format.caption), Concat({"Ecrire en ", format.name}),
                           Text(format.outExtension), Text(format.modelExtension),
                           format.word == kFirstChoice});
    }
    return options;
}

}  // namespace swiftroll::modGenFileFromModel
