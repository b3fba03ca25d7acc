// The commands that draw kinship paths, their options and the name of their file.
#include "drawing/kinship_page.h"
#include "drawing/kinship_print.h"
#include "shell/frm_main.h"
#include "tables/columns.h"
#include "text/edit.h"
#include "text/literal.h"
#include "writers/output_format.h"

namespace swiftroll {

void frmMain::BindDrawing() {
    mnuDrawKinshipOne.Operation = [this] { DrawKinshipAll(false, true, false); };
    mnuDrawKinshipOneSpouse.Operation = [this] { DrawKinshipAll(true, true, false); };
    mnuDrawKinshipAll.Operation = [this] { DrawKinshipAll(false, true, true); };
    mnuDrawKinshipAllSpouse.Operation = [this] { DrawKinshipAll(true, true, true); };
    cmdDrawKinship.Operation = [this] {
        const Command* const commands[] = {&mnuDrawKinshipOne, &mnuDrawKinshipOneSpouse, &mnuDrawKinshipAll,
                                           &mnuDrawKinshipAllSpouse};
        commands[cboDrawKinship.ListIndex()]->Click();
    };
    cmdPrintKinship.Operation = [this] {
        const int action = cboDrawKinship.ListIndex();
        DrawKinshipAll(action % 2 != 0, false, action >= 2);
    };
    cboDrawKinship.OnClick = [this] { cmdDrawKinship.Caption = cboDrawKinship.Get(); };
    cmdCopyTitle2kinship.Operation = [this] { cmdCopyTitle2kinship_Click(); };
    cmdSelectDirKinship.Operation = [this] {
        SelectFile(cboKinship, true,
                   {"Choisissez le fichier des Liens de Parenté à écrire"_t, "HTML",
                    txtOutExtension[modGenFileFromModel::kHtmlFormat].Get()});
    };
    picTreeH.Operation = [this] { txtKinshipLandscape.SetChecked(true); };
    picTreeV.Operation = [this] { txtKinshipLandscape.SetChecked(false); };
    for (ColourButton* button : {&cmdColorMale, &cmdColorFemale, &cmdColorUndefined}) {
        button->OnClick = [this, button] {
            std::uint32_t colour = button->Colour();
            if (ports.dialogs.AskColour(colour)) button->SetColour(colour);
        };
    }
    cmdFont.Operation = lblFont.OnDblClick = [this] { cmdFont_Click(); };
    txtFont.OnChange = [this] { txtFont_Change(); };
}

void frmMain::DrawKinshipAll(bool bSpouses, bool bHtml, bool bAll) {
    if (bSpouses && !CheckWidths()) return;
    if (bHtml) {
        cmdSelectDirKinship.Click();
        if (bDialogCancelled) return;
    }
    const ScopedFlag wait(bWaitCursor);
    trail.Guard(
        "DrawKinshipAll",
        [&] {
            const modKinshipOutput::DrawingSource source{*this, *this, *this};
            modKinshipOutput::KinshipPage page(source, modKinship.sKinshipTitle, *this, ports.files,
                                               ports.clock);
            modPrint::KinshipPrint print(source, modKinship.sKinshipTitle, ports.preview);
            modKinshipOutput::KinshipDocument& document =
                bHtml ? static_cast<modKinshipOutput::KinshipDocument&>(page) : print;
            DrawPaths(bSpouses, document, bAll);
        },
        [&] {
            return Concat({bSpouses ? "True" : "False", "/", bHtml ? "True" : "False", "/",
                           bAll ? "True" : "False", "/", cboKinship.Get()});
        });
}

void frmMain::DrawPaths(bool bSpouses, modKinshipOutput::KinshipDocument& document, bool bAll) {
    constexpr TextView kFirstLine = "000001";
    constexpr int kFirst = 1, kFurther = 2, kLast = 9;
    const ColumnId previousSortKey = lvwKinship.SortKey();
    lvwKinship.SortBy(Kinship::SeqNr, 0);
    int iStage = kFirst;
    for (std::int32_t i = 1; i <= lvwKinship.Count(); ++i) {
        const Row row = lvwKinship.Item(i);
        const bool isDrawn =
            bAll ? row.Text().ends_with(kFirstLine) : !row.Cell(Kinship::IDIndi).empty() && row.Marked();
        if (!isDrawn) continue;
        if (document.DisplayKinship(iStage, modKinshipOutput::MakeKinshipTable(*this, trail, i, bSpouses)))
            return;
        iStage = kFurther;
    }
    if (iStage == kFirst) {
        MessageBox box;
        box.title = "Graphicage des parentés"_t;
        box.text = Concat({"Aucune parenté à écrire."_t, kLineEnd, "Fichier non créé."_t});
        ports.dialogs.Show(box);
    } else if (document.DisplayKinship(kLast, {})) {
        return;
    }
    lvwKinship.SetSortKey(previousSortKey);
}

/// In a drawing with spouses a child's box stands in the gap between its parents, so that both must be equal.
/// The usual gap is too small for a box and the answer lasts, so that a hasty one changes the gap.
bool frmMain::CheckWidths() {
    const bool across = txtKinshipLandscape.Checked();
    TextBox& box = across ? txtKinWidth : txtKinHeight;
    TextBox& gap = across ? txtKinH : txtKinV;
    if (box.Get() == gap.Get()) return true;
    const TextView what = across ? "la largeur des boîtes"_t : "la hauteur des boîtes"_t;
    const TextView direction = across ? "horizontal"_t : "vertical"_t;
    const BoxAnswer answer =
        Box(across ? " - Inégalité hargeurs && écarts"_t : " - Inégalité hauteurs && écarts"_t,
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

void frmMain::cmdCopyTitle2kinship_Click() {
    Text pair = modKinship.sKinshipPair;
    for (char& c : pair) {
        if (TextView("'\"/\\:*?|").find(c) != TextView::npos) c = ' ';
    }
    const auto folderOf = [](TextView file) {
        return file.substr(0, file.size() - FileNamePart(file).size());
    };
    const Text kinship = cboKinship.Get(), list = cboSwiftOut.Get();
    const TextView folder = folderOf(kinship).empty() ? folderOf(list) : folderOf(kinship);
    cboKinship.SetText(
        Concat({folder, "Parenté "_t, pair, ".", txtOutExtension[modGenFileFromModel::kHtmlFormat].Get()}));
}

void frmMain::cmdFont_Click() {
    CellFont font = ParseCellFont(txtFont.Get()).value_or(CellFont());
    if (ports.dialogs.AskFont(font)) txtFont.SetText(CellFontFields(font));
}

void frmMain::txtFont_Change() {
    if (bFormLoading) return;
    const auto font = ParseCellFont(txtFont.Get());
    if (font) lblFont.Caption = CellFontCaption(*font);
}

}  // namespace swiftroll
