#include "shell/path_drawing.h"

#include "app/french_count.h"
#include "app/large_file.h"
#include "drawing/kinship_page.h"
#include "drawing/kinship_print.h"
#include "kinship/out_link.h"
#include "shell/drawing_size.h"
#include "shell/file_names.h"
#include "shell/work_notice.h"
#include "tables/columns.h"
#include "text/edit.h"
#include "text/literal.h"
#include "text/numbers.h"

namespace swiftroll {
namespace {

/// "Chemin 12 : grand-oncle (5 liaisons, 1 conjoint)", of the path of a row.
Text PathTitle(TableSet& tables, const RowView& row) {
    const auto counted = [](TextView cell, TextView unit) {
        const std::int64_t count = ParseDecimal(cell).value_or(0);
        return Concat({Decimal(count), " ", unit, count > 1 ? "s" : ""});
    };
    const TextView number = row.Text().substr(0, row.Text().find(modKinship::kPathEnd));
    const Text counts = Concat({counted(row.Cell(Kinship::NrLink), "liaison"), ", ",
                                counted(row.Cell(Kinship::NrSpouses), "conjoint")});
    const Text head = Concat({"Chemin ", Decimal(ParseDecimal(number).value_or(0)), " : "});
    const auto summary = tables.lvwPaths.Find(number);
    if (summary) tables.lvwPaths.Need(*summary);
    const TextView name = summary ? summary->Cell(Paths::Relation) : TextView();
    return name.empty() ? Concat({head, counts}) : Concat({head, name, " (", counts, ")"});
}

}  // namespace

PathDrawing::PathDrawing(Application& app, DrawingCommands& commands, const modKinship::Search& search,
                         FileCombos& fileCombos, const frmPreview& preview)
    : app_(app), commands_(commands), search_(search), fileCombos_(fileCombos), preview_(preview) {
    DisableKinshipCommands();
    commands_.mnuDrawKinshipOne.Operation = [this] { DrawKinshipAll(false, true, false); };
    commands_.mnuDrawKinshipOneSpouse.Operation = [this] { DrawKinshipAll(true, true, false); };
    commands_.mnuDrawKinshipAll.Operation = [this] { DrawKinshipAll(false, true, true); };
    commands_.mnuDrawKinshipAllSpouse.Operation = [this] { DrawKinshipAll(true, true, true); };
    commands_.cmdDrawKinship.Operation = [this] {
        const Command* const drawings[] = {&commands_.mnuDrawKinshipOne, &commands_.mnuDrawKinshipOneSpouse,
                                           &commands_.mnuDrawKinshipAll, &commands_.mnuDrawKinshipAllSpouse};
        drawings[app_.cboDrawKinship.ListIndex()]->Click();
    };
    commands_.cmdPrintKinship.Operation = [this] {
        const int action = app_.cboDrawKinship.ListIndex();
        DrawKinshipAll(action % 2 != 0, false, action >= 2);
    };
    app_.cboDrawKinship.OnClick = [this] { commands_.cmdDrawKinship.Caption = app_.cboDrawKinship.Get(); };
    commands_.cmdCopyTitle2kinship.Operation = [this] { cmdCopyTitle2kinship_Click(); };
    commands_.cmdSelectDirKinship.Operation = [this] {
        FileRole role{"Choisissez le fichier des Liens de Parenté à écrire"_t, "HTML",
                      modCommon::KinshipExtension(app_)};
        for (const auto& format : modDrawingFiles::DrawingFormats()) {
            role.others.emplace_back(format.name, format.extension);
        }
        fileCombos_.SelectFile(app_.cboKinship, true, role);
    };
    commands_.picTreeH.Operation = [this] { app_.txtKinshipLandscape.SetChecked(true); };
    commands_.picTreeV.Operation = [this] { app_.txtKinshipLandscape.SetChecked(false); };
    for (ColourButton* button : {&app_.cmdColorMale, &app_.cmdColorFemale, &app_.cmdColorUndefined}) {
        button->OnClick = [this, button] {
            std::uint32_t colour = button->Colour();
            if (app_.ports.dialogs.AskColour(colour)) button->SetColour(colour);
        };
    }
    commands_.cmdFont.Operation = app_.lblFont.OnDblClick = [this] { cmdFont_Click(); };
    app_.txtFont.OnChange = [this] { txtFont_Change(); };
}

void PathDrawing::DisableKinshipCommands() {
    commands_.mnuDrawKinship.Enabled = commands_.cmdDrawKinship.Enabled = app_.cboDrawKinship.Enabled =
        commands_.cmdCopyTitle2kinship.Enabled = commands_.cmdPrintKinship.Enabled = false;
    app_.messageBar.Remove(&search_);
}

void PathDrawing::EnableKinshipCommands() {
    commands_.mnuDrawKinship.Enabled = commands_.cmdDrawKinship.Enabled = app_.cboDrawKinship.Enabled =
        commands_.cmdCopyTitle2kinship.Enabled = true;
}

void PathDrawing::OfferPrinting() {
    const bool hasPaths = app_.lvwActiveListView == &app_.lvwKinship && app_.lvwKinship.Count() > 0;
    if (hasPaths && !search_.IsRunning()) commands_.cmdPrintKinship.Enabled = true;
}

void PathDrawing::DrawKinshipAll(bool bSpouses, bool bHtml, bool bAll) {
    if (bSpouses && !CheckWidths()) return;
    if (bHtml) {
        commands_.cmdSelectDirKinship.Click();
        if (app_.bDialogCancelled) return;
    }
    const ScopedFlag wait(app_.bWaitCursor);
    app_.trail.Guard(
        "DrawKinshipAll", [&] { DrawPaths(bSpouses, bHtml, bAll); },
        [&] {
            return Concat({bSpouses ? "True" : "False", "/", bHtml ? "True" : "False", "/",
                           bAll ? "True" : "False", "/", app_.cboKinship.Get()});
        });
}

void PathDrawing::DrawPaths(bool bSpouses, bool bHtml, bool bAll) {
    const ColumnId previousSortKey = app_.lvwKinship.SortKey();
    app_.lvwKinship.SortBy(Kinship::SeqNr, 0);
    const std::vector<std::int32_t> rows = RowsToDraw(bAll);
    const modPrivacy::Living living(app_, app_, app_.ports.clock);
    const modKinshipOutput::DrawingSource source{app_, app_, app_, living};
    std::unique_ptr<modKinshipOutput::KinshipDocument> document;
    if (rows.empty()) {
        MessageBox box;
        box.title = "Graphicage des parentés"_t;
        box.text = Concat({"Aucune parenté à écrire."_t, kLineEnd, "Fichier non créé."_t});
        app_.ports.dialogs.Show(box);
    } else if (!bHtml) {
        document = std::make_unique<modPrint::KinshipPrint>(source, ShownTitle(living), app_.ports.preview);
    } else if (MayWriteDrawings(rows, bSpouses)) {
        document = NewDrawingFile(source, app_.ports.files);
    }
    if (document && !DrawRows(app_.trail, rows, bSpouses, *document)) return;
    if (document && bHtml) {
        document.reset();  // now the file is whole
        TellWritten(app_, fileCombos_, ForCount(std::ssize(rows), "Dessin écrit"_t, "Dessins écrits"_t),
                    {Counted(std::ssize(rows), "chemin", "chemins")}, app_.cboKinship.Get());
    }
    app_.lvwKinship.SetSortKey(previousSortKey);
}

/// Whether the file of the drawings is small enough or allowed to be large.
bool PathDrawing::MayWriteDrawings(const std::vector<std::int32_t>& rows, bool bSpouses) {
    if (!app_.ports.files.RoomFor(app_.cboKinship.Get())) return true;
    const auto write = [&](const modKinshipOutput::DrawingSource& source, Files& files,
                           const std::vector<std::int32_t>& some) {
        DrawRows(source.feedback.trail, some, bSpouses, *NewDrawingFile(source, files));
    };
    return MayWriteLarge(app_, app_.ports.files, app_.cboKinship.Get(), EstimateDrawings(app_, rows, write));
}

/// False when it was told that a drawing could not be written.
bool PathDrawing::DrawRows(Trail& trail, const std::vector<std::int32_t>& rows, bool bSpouses,
                           modKinshipOutput::KinshipDocument& document) {
    constexpr int kFirst = 1, kFurther = 2, kLast = 9;
    int iStage = kFirst;
    for (const std::int32_t row : rows) {
        const auto grid = modKinshipOutput::MakeKinshipTable(app_, trail, row, bSpouses);
        if (document.DisplayKinship(iStage, grid, PathTitle(app_, app_.lvwKinship.Item(row)))) return false;
        iStage = kFurther;
    }
    return !document.DisplayKinship(kLast, {});
}

/// What writes the file of `cboKinship`, by its extension.
std::unique_ptr<modKinshipOutput::KinshipDocument> PathDrawing::NewDrawingFile(
    const modKinshipOutput::DrawingSource& source, Files& files) const {
    const Text name = app_.cboKinship.Get();
    const Text title = ShownTitle(source.living);
    if (const modDrawingFiles::DrawingFormat* format = modDrawingFiles::FormatOf(name)) {
        return std::make_unique<modPrint::KinshipFile>(
            source, title,
            format->make(files, name, preview_.Layout(), {{}, app_.MainCaption(), app_.ports.clock.Now()}));
    }
    return std::make_unique<modKinshipOutput::KinshipPage>(source, title, app_, files, app_.ports.clock);
}

/// The rows of `lvwKinship` at which drawings begin: the first of each path, or those that are marked.
std::vector<std::int32_t> PathDrawing::RowsToDraw(bool bAll) {
    constexpr TextView kFirstLine = "000001";
    std::vector<std::int32_t> rows;
    for (std::int32_t i = 1; i <= app_.lvwKinship.Count(); ++i) {
        if (lMostDrawings > 0 && std::ssize(rows) == lMostDrawings) break;
        const Row row = app_.lvwKinship.Item(i);
        const bool isDrawn =
            bAll ? row.Text().ends_with(kFirstLine) : !row.Cell(Kinship::IDIndi).empty() && row.Marked();
        if (isDrawn) rows.push_back(i);
    }
    return rows;
}

Text PathDrawing::ShownTitle(const modPrivacy::Living& living) const {
    return modKinship::Search::TitleOf(ShownPair(living));
}

Text PathDrawing::ShownPair(const modPrivacy::Living& living) const {
    const bool hidesFrom = living.IsLiving(search_.sKinshipFromId);
    const bool hidesTo = living.IsLiving(search_.sKinshipToId);
    if (!hidesFrom && !hidesTo) return search_.sKinshipPair;
    return modKinship::Search::PairOf(hidesFrom ? modPrivacy::kLivingName : search_.sKinshipFrom,
                                      hidesTo ? modPrivacy::kLivingName : search_.sKinshipTo);
}

/// In a drawing with spouses a child's box stands in the gap between its parents, so that both must be equal.
/// The usual gap is too small for a box and the answer lasts, so that a hasty one changes the gap.
bool PathDrawing::CheckWidths() {
    const bool across = app_.txtKinshipLandscape.Checked();
    TextBox& box = across ? app_.txtKinWidth : app_.txtKinHeight;
    TextBox& gap = across ? app_.txtKinH : app_.txtKinV;
    if (box.Get() == gap.Get()) return true;
    const TextView what = across ? "la largeur des boîtes"_t : "la hauteur des boîtes"_t;
    const TextView direction = across ? "horizontal"_t : "vertical"_t;
    const BoxAnswer answer =
        app_.Box(across ? " - Inégalité hargeurs && écarts"_t : " - Inégalité hauteurs && écarts"_t,
                 Concat({"Pour afficher les conjoints en mode "_t,
                         direction,
                         ", il est nécessaire que "_t,
                         what,
                         " (=",
                         box.Get(),
                         ")",
                         kLineEnd,
                         "soit égale à l'écart "_t,
                         direction,
                         " entre elles (=",
                         gap.Get(),
                         ")",
                         kLineEnd,
                         kLineEnd,
                         "Oui = Changer ",
                         what,
                         kLineEnd,
                         "Non = Changer l'écart "_t,
                         direction,
                         " entre les boîtes"_t,
                         kLineEnd,
                         "Cancel = Arrêter la génération"_t}),
                 BoxButtons::YesNoCancel, BoxIcon::Question, BoxTopic::UnequalSizes, BoxAnswer::No);
    if (answer == BoxAnswer::Yes) box.SetText(gap.Get());
    if (answer == BoxAnswer::No) gap.SetText(box.Get());
    return answer != BoxAnswer::Cancel;
}

void PathDrawing::cmdCopyTitle2kinship_Click() {
    Text pair = ShownPair(modPrivacy::Living(app_, app_, app_.ports.clock));
    for (char& c : pair) {
        if (TextView("'\"/\\:*?|").find(c) != TextView::npos) c = ' ';
    }
    const auto folderOf = [](TextView file) {
        return file.substr(0, file.size() - FileNamePart(file).size());
    };
    const Text kinship = app_.cboKinship.Get(), list = app_.cboSwiftOut.Get();
    const TextView folder = folderOf(kinship).empty() ? folderOf(list) : folderOf(kinship);
    app_.cboKinship.SetText(Concat({folder, "Parenté "_t, pair, ".", modCommon::KinshipExtension(app_)}));
}

void PathDrawing::cmdFont_Click() {
    CellFont font = ParseCellFont(app_.txtFont.Get()).value_or(CellFont());
    if (app_.ports.dialogs.AskFont(font)) app_.txtFont.SetText(CellFontFields(font));
}

void PathDrawing::txtFont_Change() {
    if (app_.bFormLoading) return;
    const auto font = ParseCellFont(app_.txtFont.Get());
    if (font) app_.lblFont.Caption = CellFontCaption(*font);
}

}  // namespace swiftroll
