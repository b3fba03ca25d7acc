#include "writers/variables.h"

#include "app/french_date.h"
#include "text/edit.h"
#include "text/numbers.h"

namespace swiftroll::modGenFileFromModel {

DocumentVariables::DocumentVariables(const Product& product, const ListOrigin& origin, const Moment& now) {
    values_ = {
        {"%SWIFTROLL%", Concat({"<a href=\"", product.sWebAddress, "\">", product.sProduct, "</a> (v",
                                product.sVersion, ")"})},
        {"%INDIVIDUALS%", Decimal(origin.lNrNames)},
        {"%GEDCOM_LINES%", Decimal(std::int64_t{origin.lNrLines} + 1)},
        {"%GEDCOM_FULL_FILENAME%", origin.sGedcom},
        {"%GEDCOM_FILENAME%", Text(FileNamePart(origin.sGedcom))},
        {"%DATE_LONG%", LongDate(now)},
        {"%DATE_MEDIUM%", MediumDate(now)},
        {"%DATE_SHORT%", ShortDate(now)},
        {"%TIME_LONG%", LongTime(now)},
        {"%TIME_SHORT%", ShortTime(now)},
    };
}

Text DocumentVariables::Replace(TextView sText) const {
    Text out(sText);
    for (const auto& [variable, value] : values_) {
        if (out.find(variable) != Text::npos) out = ReplaceAll(out, variable, value);
    }
    return out;
}

void PrintWithOtherTags(File& iFile, TextView sText, const DocumentVariables& variables) {
    // Nearly all pieces are cells without a variable.
    if (sText.find('%') == TextView::npos) {
        iFile.Write(sText);
    } else {
        iFile.Write(variables.Replace(sText));
    }
}

}  // namespace swiftroll::modGenFileFromModel
