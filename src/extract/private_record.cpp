#include "extract/private_record.h"

#include <algorithm>

#include "gedcom/gedcom_line.h"
#include "privacy/living.h"
#include "text/edit.h"

namespace swiftroll::modSaveGed {
namespace {

/// The lines of level 1 of a tag with the values that `valueOf` takes of theirs, and nothing of what stands
/// below them; none where it takes nothing.
Text LinesOf(TextView sRecord, TextView tag, TextView (*valueOf)(TextView)) {
    Text lines;
    for (TextView rest = sRecord; !rest.empty();) {
        const std::size_t end = std::min(rest.find_first_of(kLineEnd), rest.size());
        modReadGedcom::GedcomLine line;
        line.sLine = TrimLeft(rest.substr(0, end));
        rest.remove_prefix(std::min(end + 1, rest.size()));
        if (line.Split() || line.iLevel != 1 || line.sTag != tag) continue;
        const TextView value = valueOf(line.sValue);
        if (!value.empty()) lines += Concat({"1 ", tag, " ", value, kLineEnd});
    }
    return lines;
}

/// The letter of a sex; a longer value may be any text.
TextView SexOf(TextView value) {
    const TextView sex = Trim(value);
    return sex.size() == 1 ? sex : TextView();
}

}  // namespace

Text PrivateRecord(TextView sRecord, TextView sId) {
    return Concat({"0 ", sId, sId.empty() ? "" : " ", "INDI", kLineEnd, "1 NAME ", modPrivacy::kLivingName,
                   " //", kLineEnd, LinesOf(sRecord, "SEX", SexOf),
                   LinesOf(sRecord, "FAMS", modReadGedcom::GetXrefUsed),
                   LinesOf(sRecord, "FAMC", modReadGedcom::GetXrefUsed)});
}

}  // namespace swiftroll::modSaveGed
