#include "check/report_page.h"

#include "app/french_date.h"
#include "check/finding_columns.h"
#include "text/code_page.h"
#include "text/markup.h"
#include "text/numbers.h"

namespace swiftroll::modCheck {
namespace {

constexpr std::size_t kBufferSize = std::size_t{1} << 16;

constexpr TextView kStyle =
    R"(:root { color-scheme: light dark; }
body { margin: 1.5rem auto; padding: 0 1rem; max-width: 70rem; font: 16px/1.5 system-ui, sans-serif; }
h2 { margin-top: 2rem; font-size: 1.15rem; }
table { border-collapse: collapse; width: 100%; }
caption { text-align: left; }
th, td { padding: .25rem .6rem; border: 1px solid #9998; text-align: left; vertical-align: top; }
td:first-child { text-align: right; white-space: nowrap; }
tbody tr:nth-child(even) { background: #8881; }
.erreur { border-left: .4rem solid #c62828; padding-left: .5rem; }
.avertissement { border-left: .4rem solid #c77700; padding-left: .5rem; }
.info { border-left: .4rem solid #2a6f97; padding-left: .5rem; }
)";

Text Counted(std::size_t count, TextView one, TextView several) {
    return Concat({Decimal(static_cast<std::int64_t>(count)), " ", count < 2 ? one : several});
}

Text TitleOf(const Report& report) { return Concat({"Contrôle de "_t, FileNamePart(report.file)}); }

class Page {
  public:
    Page(const Report& report, File& file) : report_(report), findings_(report.findings), file_(file) {}

    void Write(const Product& product, const Moment& now) {
        const Text title = EscapeMarkup(TitleOf(report_));
        Put({"<!DOCTYPE html>\n<html lang=\"fr\">\n<head>\n<meta charset=\"utf-8\">\n",
             "<meta name=\"viewport\" content=\"width=device-width, initial-scale=1\">\n<title>", title,
             "</title>\n<style>\n", kStyle, "</style>\n</head>\n<body>\n<h1>", title, "</h1>\n<p>",
             EscapeMarkup(SummaryOf(report_)), ".</p>\n"});
        WriteContents();
        for (const RuleFacts& facts : kRules) WriteRule(facts);
        Put({"<footer><p>Généré par <a href=\""_t, EscapeMarkup(product.sWebAddress), "\">SwiftRoll</a> (v",
             product.sVersion, ") le ", ShortDate(now), "</p></footer>\n</body>\n</html>\n"});
        file_.Write(buffer_);
        file_.Close();
    }

  private:
    void WriteContents() {
        if (findings_.Rows().empty()) return;
        Put({"<nav aria-label=\"Constats\">\n<ul>\n"});
        for (const RuleFacts& facts : kRules) {
            const auto count = static_cast<std::int64_t>(findings_.CountOf(facts.rule));
            if (count == 0) continue;
            Put({"<li><a href=\"#r", Decimal(facts.number), "\">", Decimal(facts.number), ". ", facts.name,
                 "</a> : ", Decimal(count), " (", WordOf(facts.severity), ")</li>\n"});
        }
        Put({"</ul>\n</nav>\n"});
    }

    void WriteRule(const RuleFacts& facts) {
        if (findings_.CountOf(facts.rule) == 0) return;
        Put({"<h2 id=\"r", Decimal(facts.number), "\" class=\"", WordOf(facts.severity), "\">",
             Decimal(facts.number), ". ", facts.name, "</h2>\n<table>\n<caption>", WordOf(facts.severity)});
        if (!facts.unit.empty()) Put({" ; limite : ", Decimal(facts.limit), " ", facts.unit});
        Put({"</caption>\n<thead><tr>"});
        for (const FindingColumnTexts& column : kFindingColumns) {
            if (IsShown(column.column)) Put({"<th scope=\"col\">", column.caption, "</th>"});
        }
        Put({"</tr></thead>\n<tbody>\n"});
        for (const Finding& finding : findings_.Rows()) {
            if (finding.rule != facts.rule) continue;
            Put({"<tr>"});
            for (const FindingColumnTexts& column : kFindingColumns) {
                if (!IsShown(column.column)) continue;
                Put({"<td>", EscapeMarkup(CellOf(findings_, finding, column.column)), "</td>"});
            }
            Put({"</tr>\n"});
        }
        Put({"</tbody>\n</table>\n"});
    }

    /// The head of a rule tells the others.
    static bool IsShown(FindingColumn column) {
        return column != FindingColumn::Rule && column != FindingColumn::Severity;
    }

    void Put(std::initializer_list<TextView> pieces) {
        for (const TextView piece : pieces) buffer_ += ToUtf8(piece);
        if (buffer_.size() < kBufferSize) return;
        file_.Write(buffer_);
        buffer_.clear();
    }

    const Report& report_;
    const Findings& findings_;
    File& file_;
    std::string buffer_;  // in UTF-8
};

}  // namespace

Text SummaryOf(const Report& report) {
    const auto count = [&report](Severity severity) { return report.findings.CountOf(severity); };
    return Concat({TitleOf(report), " : ", Counted(count(Severity::Error), "erreur", "erreurs"), ", ",
                   Counted(count(Severity::Warning), "avertissement", "avertissements"), ", ",
                   Counted(count(Severity::Info), "information", "informations"),
                   report.isComplete ? TextView() : " (interrompu)"});
}

void WriteReportPage(const Report& report, const Product& product, const Moment& now, File& file) {
    Page(report, file).Write(product, now);
}

}  // namespace swiftroll::modCheck
