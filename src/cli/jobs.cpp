#include "jobs.h"

#include <algorithm>

#include "console.h"
#include "list/sort_keys.h"
#include "platform/interrupt.h"
#include "platform/std_files.h"
#include "platform/system_clock.h"
#include "platform/user_folders.h"
#include "print_tables.h"
#include "settings.h"
#include "shell/file_names.h"
#include "text/code_page.h"
#include "text/edit.h"
#include "text/literal.h"

namespace swiftroll::cli {
namespace {

constexpr TextView kStandardOutput = "-";

/// The files of the machine, and "-" for standard output.
class CliFiles : public platform::StdFiles {
  public:
    std::unique_ptr<File> Open(TextView name, Mode mode) override {
        if (name == kStandardOutput && mode == Mode::Write) return platform::OpenStandardOutput();
        return StdFiles::Open(name, mode);
    }
    bool Exists(TextView name) override { return name != kStandardOutput && StdFiles::Exists(name); }
};

class Runner {
  public:
    explicit Runner(const Arguments& arguments)
        : arguments_(arguments),
          dialogs_(arguments),
          progress_(!arguments.quiet && platform::ErrorIsTerminal()),
          main_({dialogs_, clock_, pump_, files_, folders_, progress_}) {
        progress_.Watch(main_);
        pump_.Watch(main_);
        dialogs_.beforeBox = [this] { progress_.Wipe(); };
    }

    int Run() {
        main_.Form_Load({});
        main_.chkGenerXSL.SetChecked(arguments_.withStylesheet);
        ArrangeColumns(main_, {"LastName", "Place", "DateMin", "DateMax"});
        ApplySettings(main_, arguments_.settings);
        if (arguments_.job == Job::Tables) {
            FindTables();
        } else {
            PrepareOutput();
        }
        platform::CatchInterrupts();
        try {
            if (Prepared()) Do();
        } catch (const ProgramEnd&) {
            // It was reported; what else there is to do is to end.
        }
        Finish();
        if (main_.bAbort || platform::WasInterrupted()) return kStopped;
        return failed_ || dialogs_.HasRefusal() || main_.trail.Reports() > 0 ? kFailed : kDone;
    }

  private:
    void FindTables() {
        for (const std::string& name : arguments_.tables) {
            Table* table = main_.Named(name);
            if (table == nullptr) throw UsageError("table inconnue : " + name);
            tables_.push_back(table);
        }
        if (tables_.empty()) throw UsageError("il manque le nom d'une table : -t TABLE");
        dialogs_.recalculates = std::find(tables_.begin(), tables_.end(), &main_.lvwOut) != tables_.end();
    }

    /// Chooses the format and the names of the files, as a user does before the command "Ecrire".
    void PrepareOutput() {
        dialogs_.recalculates = true;
        dialogs_.outputFile = FileNameToText(arguments_.output);
        main_.cboSaveSwift.SetListIndex(Format());
        if (!arguments_.model.empty()) main_.cboFileModel.SetText(FileNameToText(arguments_.model));
        if (WritesStylesheet() && dialogs_.outputFile == kStandardOutput) {
            throw UsageError("--xsl demande un fichier de sortie");
        }
        if (WritesStylesheet() && StylesheetFile() == dialogs_.outputFile) {
            throw UsageError("la sortie a le nom de sa feuille de style : " + arguments_.output);
        }
    }

    int Format() const {
        const std::string formats[] = {"html", "texte", "xml"};
        int format = 0;
        const Text name = LowerCaseAscii(FileNamePart(dialogs_.outputFile));
        const auto hasExtension = [&](TextView extension) {
            return name.ends_with("." + LowerCaseAscii(extension));
        };
        for (int i = 0; i < 3; ++i) {
            if (hasExtension(main_.txtOutExtension[static_cast<std::size_t>(i)].Get())) format = i;
        }
        if (!arguments_.format.empty()) {
            const auto chosen = std::find(std::begin(formats), std::end(formats), arguments_.format);
            if (chosen == std::end(formats)) throw UsageError("format inconnu : " + arguments_.format);
            format = static_cast<int>(chosen - std::begin(formats));
        }
        if (arguments_.withStylesheet && format != 2) throw UsageError("--xsl ne va qu'avec le format xml");
        return format;
    }

    bool WritesStylesheet() const { return main_.iOutFormat == 2 && main_.chkGenerXSL.Checked(); }

    Text StylesheetFile() const {
        return modCommon::ChangeExtension(dialogs_.outputFile, main_.txtModelExtension[2].Get());
    }

    void Refuse(TextView why) {
        progress_.Wipe();
        PrintError(why);
        failed_ = true;
    }

    /// Puts the input in its place and looks at the outputs; false when the job is refused, with nothing read
    /// or written.
    bool Prepared() {
        const Text input = FileNameToText(arguments_.input);
        main_.cboGedIn.SetText(input);
        if (arguments_.job == Job::Tables) return true;
        return MayWrite(dialogs_.outputFile) && (!WritesStylesheet() || MayWrite(StylesheetFile()));
    }

    bool MayWrite(TextView output) {
        if (output == kStandardOutput || !files_.Exists(output)) return true;
        for (const ComboBox* source : {&main_.cboGedIn, &main_.cboFileModel}) {
            if (!files_.AreSame(output, source->Get())) continue;
            Refuse(Concat({"La sortie "_t, output, " est aussi le fichier à lire "_t, source->Get(),
                           " : choisissez un autre nom."_t}));
            return false;
        }
        if (arguments_.overwrite) return true;
        Refuse(Concat({"Le fichier "_t, output, " existe déjà : -f (--ecraser) le remplace."_t}));
        return false;
    }

    void Do() {
        hasRead_ = true;
        main_.cmdLoad.Click();
        if (dialogs_.HasRefusal() || !Mark()) return;
        if (arguments_.job == Job::Tables) {
            progress_.Wipe();
            if (!PrintTables(tables_, arguments_.withKeys)) Refuse("La sortie n'a pas pu être écrite."_t);
        } else if (!main_.bAbort && !platform::WasInterrupted()) {
            WriteReleve();
        }
    }

    /// Marks the rows of the command line; false when there is no such individual.
    bool Mark() {
        for (const std::string& id : arguments_.markedIds) {
            const auto text = FromUtf8(id);
            auto row = text ? main_.lvwIn.Find(TextView(*text)) : std::nullopt;
            if (!row) {
                Refuse(Concat({"Aucun individu n'a l'identifiant "_t, FileNameToText(id), "."}));
                return false;
            }
            row->SetSelected(true);
            row->SetChecked(true);
        }
        return true;
    }

    /// A row of the list is marked when an individual of its group is.
    void MarkGroups() {
        for (std::int32_t i = 1; i <= main_.lvwIn.Count(); ++i) {
            const Row row = main_.lvwIn.Item(i);
            if (!row.Marked()) continue;
            auto group = main_.lvwOut.Find(TextView(modCalcOut::MakeSortKeyIn(main_.positions, row)));
            if (group) group->SetSelected(true);
        }
    }

    void WriteReleve() {
        MarkGroups();
        main_.cmdSaveSwift.Click();
        if (!main_.bWriteComplete) {
            Refuse(Concat({"Erreur d'écriture dans le fichier "_t, dialogs_.outputFile, "."}));
        }
    }

    void Finish() {
        progress_.Wipe();
        if (arguments_.quiet || !hasRead_) return;
        for (const Panel* panel :
             {&main_.pnlLines, &main_.pnlIndividuals, &main_.pnlFamilies, &main_.pnlMessage}) {
            if (!panel->Get().empty()) PrintError(panel->Get());
        }
    }

    const Arguments& arguments_;
    HeadlessDialogs dialogs_;
    platform::SystemClock clock_;
    InterruptPump pump_;
    CliFiles files_;
    platform::UserFolders folders_;
    TerminalProgress progress_;
    frmMain main_;
    std::vector<Table*> tables_;
    bool hasRead_ = false;
    bool failed_ = false;
};

}  // namespace

int RunJob(const Arguments& arguments) { return Runner(arguments).Run(); }

}  // namespace swiftroll::cli
