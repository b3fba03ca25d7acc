#include "shell/ask_file.h"

#include "text/edit.h"
#include "text/literal.h"

namespace swiftroll {
namespace {

/// Asks about a file that exists.
BoxAnswer AskToOverwrite(Application& app, TextView sFile) {
    if (!app.ports.files.Exists(sFile)) return BoxAnswer::Yes;
    return app.Box(
        " - Fichier existant"_t,
        Concat({"Le fichier existe déjà"_t, kLineEnd, sFile, kLineEnd, "Voulez-vous l'écraser ?"_t}),
        BoxButtons::YesNoCancel, BoxIcon::Question, BoxTopic::OverwriteFile);
}

Text FilterOf(TextView name, TextView extension) {
    return Concat({name, " (*.", extension, ")|*.", extension, "|"});
}

}  // namespace

Dialogs::FileRequest FileRequestOf(bool bSave, TextView title, TextView fileName, TextView filterName,
                                   TextView extension, const FileKinds& others) {
    Dialogs::FileRequest request{bSave, Text(title), Text(fileName), {}, Text(extension)};
    if (fileName.ends_with(':') || fileName.ends_with('\\') || fileName.ends_with('/'))
        request.fileName += Concat({"*.", extension});
    request.filter = FilterOf(filterName, extension);
    for (const auto& [name, otherExtension] : others) request.filter += FilterOf(name, otherExtension);
    request.filter += "Tous (*.*)|*.*";
    return request;
}

bool AskFile(Application& app, const Dialogs::FileRequest& request, Text& chosen) {
    BoxAnswer answer = BoxAnswer::Yes;
    do {
        if (!app.ports.dialogs.AskFile(request, chosen)) {
            chosen.clear();
            return false;
        }
        if (request.save) answer = AskToOverwrite(app, chosen);
    } while (answer == BoxAnswer::No);
    return answer == BoxAnswer::Yes;
}

}  // namespace swiftroll
