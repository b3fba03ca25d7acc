#include "writers/index.h"

#include <algorithm>
#include <limits>

#include "list/sort_keys.h"
#include "text/edit.h"
#include "text/failure.h"
#include "text/numbers.h"

namespace swiftroll::modGenFileFromModel {

Text IndexPass::EntryOf(const Row& row) const {
    const Text sKey = modCalcOut::MakeSortKeyOut(source_.tables.positions, row);
    const TextView parts = TextView(sKey).substr(sKey.empty() ? 0 : 1);
    Text entry = Concat({parts.substr(0, parts.find('\\')), "_"});
    const std::int16_t length = ToInteger(source_.options.txtINDEX.Get());
    if (length < 0) throw Failure(FailureKind::InvalidArgument);
    return entry.substr(0, static_cast<std::size_t>(length));
}

std::optional<Text> IndexPass::NewEntry(const Row& row) {
    Text entry = EntryOf(row);
    if (entry == sPrevIndex_) return std::nullopt;
    if (iIndexCount_ == std::numeric_limits<std::int16_t>::max()) throw Failure(FailureKind::Overflow);
    ++iIndexCount_;
    sPrevIndex_ = entry;
    std::replace(entry.begin(), entry.end(), ' ', '_');
    return entry;
}

Text CalcINDEXes(const ListSource& source, bool bSelectedOnly, TextView sEmptyCell) {
    return source.feedback.trail.Guard(
        "CalcINDEXes",
        [&] {
            Text links;
            IndexPass pass(source);
            for (std::int32_t i = 1; i <= source.tables.lvwOut.Count(); ++i) {
                const Row row = source.tables.lvwOut.Item(i);
                if (bSelectedOnly && !row.Marked()) continue;
                if (const auto entry = pass.NewEntry(row)) {
                    links += Concat({"<A href=\"#SR_", *entry, "\">", *entry, "</A>", sEmptyCell});
                }
            }
            return links;
        },
        [&] { return source.options.txtINDEX.Get(); });
}

void AnchorWriter::PutINDEX(File& iFile, const Row& row, bool bXml) {
    if (failed_) return;
    const auto entry = source_.feedback.trail.GuardElse(
        "PutINDEX", [&] { return pass_.NewEntry(row); },
        [&] {
            failed_ = true;
            source_.feedback.trail.ErrorLog(source_.options.txtINDEX.Get());
        });
    if (!entry) return;
    if (bXml) {
        iFile.Write(Concat({"  <tag>SR_", *entry, "</tag>", kLineEnd}));
    } else {
        iFile.Write(Concat({"<A NAME=\"SR_", *entry, "\"></A>"}));
    }
}

}  // namespace swiftroll::modGenFileFromModel
