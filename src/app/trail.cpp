#include "app/trail.h"

#include <limits>

#include "app/french_date.h"
#include "text/edit.h"
#include "text/literal.h"
#include "text/numbers.h"

namespace swiftroll {
namespace {

constexpr std::size_t kTraceStep = 1000;
constexpr std::size_t kReportPiece = 50;

Text ParameterLines(TextView sReport) {
    Text lines;
    do {
        lines += Concat({kLineEnd, "    |", sReport.substr(0, kReportPiece), "|"});
        sReport.remove_prefix(std::min(kReportPiece, sReport.size()));
    } while (!sReport.empty());
    return lines;
}

}  // namespace

void Trail::MakeRoom() {
    const std::size_t deepest = std::numeric_limits<std::int16_t>::max();
    if (aTrace.size() > deepest) throw Failure(FailureKind::Overflow);
    aTrace.resize(std::min(deepest + 1, std::max<std::size_t>(aTrace.size(), 1) + kTraceStep));
}

Trail::Account Trail::AccountOf(TextView sReport) const {
    Text message =
        Concat({Decimal(failure_.Number()), ": ", failure_.What(), " (L:", Decimal(failure_.Line()), ")"});
    message += Concat({kLineEnd, kLineEnd, "Appellé par : "_t});
    for (auto depth = static_cast<std::size_t>(iTraceDepth); depth >= 1; --depth) {
        message += Concat({kLineEnd, "    ", aTrace[depth]});
    }
    message += Concat({kLineEnd, kLineEnd, "Paramètres : "_t, ParameterLines(sReport)});
    const TextView name = iTraceDepth > 0 ? aTrace[static_cast<std::size_t>(iTraceDepth)] : "";
    return {Concat({context_.caption(), " - Erreur \"", name}), message};
}

void Trail::ErrorLog(TextView sReport) {
    ++reports_;
    const Account account = AccountOf(sReport);
    // The box comes first, so that a full disk does not hide the failure from the user.
    ports_.dialogs.Show({account.title, account.message});
    AppendToLog(account);
}

void Trail::LogOnly(TextView sReport) { AppendToLog(AccountOf(sReport)); }

void Trail::AppendToLog(const Account& account) {
    try {
        const auto log = ports_.files.Open(context_.logFile(), Files::Mode::Append);
        log->Write(
            Concat({kLineEnd, "--------------- (", context_.runStart(), ") ", LongTime(ports_.clock.Now()),
                    " : ", account.title, " : ", account.message, kLineEnd}));
        for (const Table* table : tables_.Logged()) {
            log->Write(Concat({PadRight(table->Name(), 14), "= ", Decimal(table->Count()), kLineEnd}));
        }
        log->Close();
    } catch (const std::exception&) {
        // A log that cannot be written costs nothing more.
    }
}

}  // namespace swiftroll
