#include "shell/work_notice.h"

#include "app/french_count.h"
#include "text/edit.h"
#include "text/literal.h"

namespace swiftroll {
namespace {

/// "640 octets", "14 Ko", "2,1 Mo".
Text FrenchSize(std::int64_t bytes) {
    constexpr std::int64_t kKilobyte = 1000, kMegabyte = 1000 * kKilobyte, kGigabyte = 1000 * kMegabyte;
    if (bytes < kKilobyte) return Counted(bytes, "octet", "octets");
    if (bytes < kMegabyte) return Concat({FrenchCount(bytes / kKilobyte), " Ko"});
    if (bytes < kGigabyte) return Concat({FrenchTenths(bytes / (kMegabyte / 10)), " Mo"});
    return Concat({FrenchTenths(bytes / (kGigabyte / 10)), " Go"});
}

Text EndText(TextView what, const std::vector<Text>& made) {
    Text text(what);
    for (std::size_t i = 0; i < made.size(); ++i) text += Concat({i == 0 ? ": " : ", ", made[i]});
    return text;
}

}  // namespace

Text Counted(std::int64_t count, TextView singular, TextView plural) {
    return Concat({FrenchCount(count), " ", ForCount(count, singular, plural)});
}

void TellEnd(Application& app, TextView what, const std::vector<Text>& made, bool isWhole) {
    app.messageBar.Tell({EndText(what, made)}, isWhole ? Stay::AWhile : Stay::UntilNext);
}

void TellWritten(Application& app, FileCombos& fileCombos, TextView what, std::vector<Text> made,
                 const Text& sFile) {
    if (const auto stamp = app.ports.files.Stamp(sFile)) made.push_back(FrenchSize(stamp->length));
    app.messageBar.Tell(
        {EndText(what, made), {{Text("Ouvrir"), [&fileCombos, sFile] { fileCombos.OpenFile(sFile); }}}});
}

void TellSetSaved(Application& app, TextView sName) {
    app.messageBar.Tell({Concat({"Jeu « "_t, sName, " » enregistré."_t})});
}

void OfferAnotherCheck(Application& app, MessageBar::Owner owner, Event check) {
    app.messageBar.Show(owner, {Text("La vérification des mises-à-jour a échoué."_t),
                                {{Text("Réessayer"_t), std::move(check)},
                                 {Text("Fermer"), [&app, owner] { app.messageBar.Remove(owner); }}}});
}

}  // namespace swiftroll
