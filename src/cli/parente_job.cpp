#include "parente_job.h"

#include <algorithm>
#include <chrono>

#include "app/large_file.h"
#include "job_parser.h"
#include "print_tables.h"
#include "session.h"
#include "text/code_page.h"
#include "text/edit.h"
#include "text/literal.h"
#include "text/numbers.h"
#include "words.h"

namespace swiftroll::cli {
namespace {

/// The modes in the order of the list of the drawing command; those from `kAll` on draw all paths.
constexpr std::string_view kDrawingModes[] = {"une", "une+", "toutes", "toutes+"};
constexpr int kAll = 2;
const std::string kDefaultTable = "lvwKinship";
constexpr std::string_view kDefaultMode = "toutes+";

/// @throws UsageError
int PlaceOfMode(std::string_view mode) {
    const auto found = std::find(std::begin(kDrawingModes), std::end(kDrawingModes), mode);
    if (found == std::end(kDrawingModes)) throw UsageError("mode de dessin inconnu : " + std::string(mode));
    return static_cast<int>(found - std::begin(kDrawingModes));
}

}  // namespace

std::string ParenteJob::Help() const {
    return R"(  swiftroll-cli parente FICHIER.ged ID1 ID2 [-t TABLE[,TABLE...]] [-o LISTE] [--max N] [--delai SECONDES]
                        [--proches N] [--dessin SORTIE.html|.svg|.pdf] [--mode une|une+|toutes|toutes+]
                        [--lignes SEQ[,SEQ...]] [--dessin-max N] [--chemin-par-page] [--ajuster]
      cherche tous les liens de parenté du premier individu au second, et affiche les chemins ()" +
           kDefaultTable + R"(),
      ou écrit les tables dans LISTE. --max arrête la recherche après N chemins, --delai après ce temps ; ce
      qui est trouvé est gardé et affiché. --set chkMaxLinks=1 --set txtMaxLinks=N ne garde que les chemins
      d'au plus N lignes, chkMaxSpouses et txtMaxSpouses ceux d'au plus N conjoints.
      --proches N donne les N liens les plus proches, sans chercher tous les autres : d'abord ceux qui passent
      par le moins de mariages, et parmi eux les plus courts.
      -t lvwPaths affiche une ligne par chemin, qui dit ce que le second individu est pour le premier, les degrés
      civil et canonique et les ancêtres communs.
      --dessin dessine ensuite tous les chemins (toutes, toutes+ avec les conjoints, qui est le défaut), ou
      ceux des lignes données par leur numéro (une, une+ ; la première ligne si rien n'est dit). L'extension de
      SORTIE dit le format : .svg, .pdf, une page HTML sinon. --dessin-max ne dessine que les N premiers ;
      dans un PDF, --chemin-par-page commence une page à chaque chemin, et --ajuster réduit à une page.
)";
}

void ParenteJob::Declare(JobParser& parser) {
    parser.Argument("ID1", options_.fromId);
    parser.Argument("ID2", options_.toId);
    parser.Require(options_.toId, "il manque les identifiants des deux individus");
    options_.tables = {kDefaultTable};
    parser.List("-t", options_.tables);
    parser.Option("-o", options_.output);
    parser.Option("--dessin", options_.drawing);
    parser.Option("--mode", options_.mode);
    parser.List("--lignes", options_.drawnRows);
    parser.Limit("--dessin-max", options_.mostDrawings);
    parser.Flag("--chemin-par-page", options_.pathPerPage);
    parser.Flag("--ajuster", options_.fitToPage);
    parser.Limit("--max", options_.mostPaths);
    parser.Limit("--delai", options_.mostSeconds);
    parser.Limit("--proches", options_.nearest);
}

void ParenteJob::Check() {
    drawingMode_ = PlaceOfMode(options_.mode.empty() ? kDefaultMode : options_.mode);
    const bool hasRows = !options_.drawnRows.empty();
    if (options_.drawing.empty() && (!options_.mode.empty() || hasRows)) {
        throw UsageError("--mode et --lignes demandent un dessin : --dessin SORTIE.html");
    }
    if (options_.drawing.empty() && options_.mostDrawings > 0) {
        throw UsageError("--dessin-max demande un dessin : --dessin SORTIE.html");
    }
    const modDrawingFiles::DrawingFormat* format =
        modDrawingFiles::FormatOf(FileNameToText(options_.drawing));
    if ((options_.pathPerPage || options_.fitToPage) && (format == nullptr || !format->hasPages)) {
        throw UsageError("--chemin-par-page et --ajuster demandent un PDF : --dessin SORTIE.pdf");
    }
    if (hasRows && drawingMode_ >= kAll) throw UsageError("--lignes ne va qu'avec --mode une ou une+");
    if (options_.drawing == "-" && (options_.output.empty() || options_.output == "-")) {
        throw UsageError("la liste et le dessin ne peuvent aller tous deux à l'écran : donnez -o LISTE");
    }
}

void ParenteJob::Prepare(Session& session) {
    tables_ = session.TablesToPrint(options_.tables);
    drawing_ = FileNameToText(options_.drawing);
    session.dialogs.outputFile = drawing_;
    session.main.cboDrawKinship.SetListIndex(drawingMode_);
    if (options_.nearest > 0) {
        session.main.chkNearest.SetChecked(true);
        session.main.txtNearest.SetText(Decimal(options_.nearest));
    }
    session.main.drawing.lMostDrawings = options_.mostDrawings;
    session.main.preview.chkPathPerPage.SetChecked(options_.pathPerPage);
    session.main.preview.chkFitToPage.SetChecked(options_.fitToPage);
    output_ = options_.output.empty() ? Text(kStandardOutput) : FileNameToText(options_.output);
}

bool ParenteJob::MayRun(Session& session) {
    return session.MayWrite(output_) && (drawing_.empty() || session.MayWrite(drawing_));
}

void ParenteJob::Do(Session& session) {
    if (session.IsStopped()) return;
    if (!session.HasFamiliesFor(session.main.cmdFindPath, "La parenté ne peut être cherchée"_t)) return;
    if (!session.Mark(options_.fromId) || !session.Mark(options_.toId)) return;
    if (!Search(session)) return;
    if (!MayWriteTables(session)) return;
    session.Write(output_, [&](File& file) { PrintTables(tables_, false, file); });
    if (!drawing_.empty() && MarkRows(session)) session.main.cmdDrawKinship.Click();
}

/// Whether the file of the tables, if they go to one, is small enough or allowed to be large.
bool ParenteJob::MayWriteTables(Session& session) {
    if (!session.files.RoomFor(output_)) return true;
    ByteCount size;
    PrintTables(tables_, false, size);
    return MayWriteLarge(session.main, session.files, output_, size.Bytes());
}

/// Marks the rows that the modes for single paths draw; false, and it is told, when there is no such row.
bool ParenteJob::MarkRows(Session& session) {
    if (drawingMode_ >= kAll) return true;
    Table& paths = session.main.lvwKinship;
    if (options_.drawnRows.empty() && paths.Count() > 0) paths.Item(1).SetSelected(true);
    for (const std::string& seqNr : options_.drawnRows) {
        const auto text = FromUtf8(seqNr);
        auto row = text ? paths.Find(TextView(*text)) : std::nullopt;
        if (!row) {
            session.Refuse(Concat({"Aucune ligne n'a le numéro "_t, FileNameToText(seqNr), "."}));
            return false;
        }
        row->SetSelected(true);
    }
    return true;
}

/// False when the request was refused.
bool ParenteJob::Search(Session& session) {
    using Clock = std::chrono::steady_clock;
    modKinship::Search& search = session.main.kinshipSearch;
    const auto end = Clock::now() + std::chrono::duration_cast<Clock::duration>(
                                        std::chrono::duration<double>(options_.mostSeconds));
    const auto hasAllPaths = [&] { return options_.mostPaths > 0 && search.lNrLinks >= options_.mostPaths; };
    session.pump.stopWhen = [&] {
        return hasAllPaths() || (options_.mostSeconds > 0 && Clock::now() >= end);
    };
    const bool accepted =
        session.main.kinshipRequest.FindPathBetween(TextOf(options_.fromId), TextOf(options_.toId));
    session.pump.stopWhen = nullptr;
    session.stopped = accepted && (session.IsStopped() || hasAllPaths());
    return accepted;
}

}  // namespace swiftroll::cli
