#include "shell/gedcom_extract.h"

#include "extract/extract_writer.h"
#include "shell/file_as_read.h"
#include "shell/file_names.h"
#include "shell/work_notice.h"
#include "text/edit.h"
#include "text/literal.h"
#include "text/numbers.h"

namespace swiftroll {
namespace {

/// Ends an extract that lacks records. @throws Failure KeyNotFound unless there are none
void TellMissing(const modSaveGed::ExtractWriter::MissingRecords& missing) {
    if (missing.count == 0) return;
    Text names;
    for (const Text& name : missing.names) names += Concat({names.empty() ? "" : ", ", name});
    throw Failure(FailureKind::KeyNotFound,
                  Concat({Decimal(static_cast<std::int64_t>(missing.count)),
                          " enregistrement(s) manque(nt) dans le fichier, l'extrait est écrit sans : "_t,
                          names, missing.count > missing.names.size() ? ", ..." : ""}));
}

}  // namespace

GedcomExtract::GedcomExtract(Application& app, ExtractCommands& commands,
                             const modReadGedcom::LineReader& lines, FileCombos& fileCombos)
    : app_(app), commands_(commands), lines_(lines), fileCombos_(fileCombos) {
    commands_.cmdSaveGed.Operation = commands_.mnuSaveGed.Operation = [this] { cmdSaveGed_Click(); };
    commands_.cmdSelectDirGedOut.Operation = [this] {
        fileCombos_.SelectFile(app_.cboGedOut, true,
                               {"Choisissez le fichier GEDCOM à sauver"_t, "Gedcom", "ged"});
    };
    commands_.cmdCopyGedIn2GedOut.Operation =
        commands_.mnuCopyGedIn2GedOut.Operation = [this] { cmdCopyGedIn2GedOut_Click(); };
}

void GedcomExtract::cmdSaveGed_Click() {
    commands_.cmdSelectDirGedOut.Click();
    if (app_.bDialogCancelled) return;
    const Text input = app_.cboGedIn.Get(), output = app_.cboGedOut.Get();
    const Text obstacle = Obstacle(input, output);
    if (!obstacle.empty()) {
        app_.Box(" - Extrait GEDCOM"_t, obstacle, BoxButtons::Ok, BoxIcon::Exclamation);
        return;
    }
    const char* step = "Open";
    std::unique_ptr<File> out;
    std::optional<modSaveGed::ExtractWriter> writer;
    const ScopedFlag wait(app_.bWaitCursor);
    const modPrivacy::Living living(app_, app_, app_.ports.clock);
    app_.trail.GuardElse(
        "cmdSaveGed_Click",
        [&] {
            // The input first: without it, nothing of an older output is lost.
            auto [records, families] = lines_.OpenTwice(input);
            out = app_.ports.files.Open(output, Files::Mode::Write);
            writer.emplace(app_, living, lines_, input,
                           modSaveGed::ExtractWriter::Input{std::move(records), std::move(families)}, *out);
            step = "Write";
            writer->Write();
            step = "Close";
            out->Close();
            app_.pnlMessage.Set(Concat({"Extrait écrit : "_t, Decimal(writer->Individuals()),
                                        " individu(s), ", Decimal(writer->Families()), " famille(s)"}));
            TellWritten(app_, fileCombos_, "Extrait écrit"_t,
                        {Counted(writer->Individuals(), "individu", "individus"),
                         Counted(writer->Families(), "famille", "familles")},
                        output);
            step = "References";
            TellMissing(writer->Missing());
        },
        [&] {
            const Text report = Concat({input, "/", output, "/", step});
            app_.trail.ErrorLog(report);
            try {
                // The output stays as far as it was written.
                if (writer) writer->Finish();
            } catch (const Failure&) {
                // The failure that began it was told.
            }
        });
}

Text GedcomExtract::Obstacle(TextView input, TextView output) {
    Files& files = app_.ports.files;
    const auto tell = [](TextView what, TextView file, TextView whatToDo) {
        return Concat({what, kLineEnd, file, kLineEnd, kLineEnd, "Rien n'a été écrit. "_t, whatToDo});
    };
    if (files.AreSame(input, output)) {
        return tell("L'extrait écraserait le fichier GEDCOM lu :"_t, output,
                    "Choisissez un autre nom pour la sortie."_t);
    }
    const modReadGedcom::FileRead& read = lines_.Origin();
    if (input != read.sFile && !files.AreSame(input, read.sFile)) {
        return tell("Ce fichier GEDCOM n'est pas celui qui a été lu :"_t, input,
                    Concat({"Lisez-le, ou remettez en entrée "_t, read.sFile, "."}));
    }
    const FileAsRead state = StateOf(read, files);
    if (state == FileAsRead::NotReadableAgain) {
        return tell("Ce fichier GEDCOM ne peut pas être relu :"_t, input,
                    "Copiez-le dans un fichier du disque, puis lisez la copie."_t);
    }
    if (state == FileAsRead::Changed) {
        return tell("Le fichier GEDCOM a changé depuis sa lecture :"_t, input,
                    "Relisez-le, puis recommencez l'extrait."_t);
    }
    return {};
}

void GedcomExtract::cmdCopyGedIn2GedOut_Click() {
    app_.cboGedOut.SetText("");
    modCommon::ChangeGedOutExtension(app_);
    app_.cboGedOut.TakeFocus();
    app_.cboGedOut.LoseFocus();
}

}  // namespace swiftroll
