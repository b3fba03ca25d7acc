#include "session.h"

#include "platform/interrupt.h"
#include "text/code_page.h"
#include "text/edit.h"
#include "text/literal.h"

namespace swiftroll::cli {

std::unique_ptr<File> CliFiles::Open(TextView name, Mode mode) {
    if (name == kStandardOutput && mode == Mode::Write) return platform::OpenStandardOutput();
    return StdFiles::Open(name, mode);
}

Session::Session(const Arguments& theArguments)
    : arguments(theArguments),
      dialogs(theArguments),
      progress(!theArguments.quiet && platform::ErrorIsTerminal()),
      main({dialogs, clock, pump, files, folders, progress, machine, desktop, desktop, desktop, settings,
            preview, desktop, desktop}) {
    progress.Watch(main);
    pump.Watch(main);
    dialogs.beforeBox = [this] { progress.Wipe(); };
}

std::vector<Table*> Session::TablesToPrint(const std::vector<std::string>& names) {
    std::vector<Table*> tables;
    for (const std::string& name : names) {
        Table* table = main.Named(name);
        // The job "cousins" fills the table of relatives; nothing else does.
        if (table == nullptr || table == &main.lvwRelatives) throw UsageError("table inconnue : " + name);
        if (table == &main.lvwOut) dialogs.recalculates = true;
        tables.push_back(table);
    }
    if (tables.empty()) throw UsageError("il manque le nom d'une table : -t TABLE");
    return tables;
}

void Session::Refuse(TextView why) {
    progress.Wipe();
    PrintError(why);
    failed = true;
}

bool Session::MayWrite(TextView output) {
    if (output == kStandardOutput || !files.Exists(output)) return true;
    for (const ComboBox* source : {&main.cboGedIn, &main.cboFileModel}) {
        if (!files.AreSame(output, source->Get())) continue;
        Refuse(Concat({"La sortie "_t, output, " est aussi le fichier à lire "_t, source->Get(),
                       " : choisissez un autre nom."_t}));
        return false;
    }
    if (arguments.overwrite) return true;
    Refuse(Concat({"Le fichier "_t, output, " existe déjà : -f (--ecraser) le remplace."_t}));
    return false;
}

bool Session::Mark(const std::string& id) {
    const auto text = FromUtf8(id);
    auto row = text ? main.lvwIn.Find(TextView(*text)) : std::nullopt;
    if (!row) {
        Refuse(Concat({"Aucun individu n'a l'identifiant "_t, FileNameToText(id), "."}));
        return false;
    }
    row->SetSelected(true);
    row->SetChecked(true);
    return true;
}

bool Session::HasFamiliesFor(const Command& command, TextView what) {
    if (command.Enabled) return true;
    Refuse(Concat({what, " que si les familles ont été lues : n'utilisez pas --sans-familles."_t}));
    return false;
}

void Session::Write(TextView output, const std::function<void(File&)>& write) {
    progress.Wipe();
    try {
        write(*files.Open(output, Files::Mode::Write));
    } catch (const Failure&) {
        Refuse(
            output == kStandardOutput
                ? Text("La sortie n'a pas pu être écrite."_t)
                : Concat({"Le fichier "_t, output,
                          " n'a pas pu être écrit : vérifiez le dossier, vos droits et la place libre."_t}));
    }
}

bool Session::IsStopped() const { return main.bAbort || platform::WasInterrupted(); }

}  // namespace swiftroll::cli
