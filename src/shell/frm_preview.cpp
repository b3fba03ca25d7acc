#include "shell/frm_preview.h"

#include <algorithm>
#include <array>
#include <cstdlib>

#include "text/edit.h"
#include "text/literal.h"
#include "text/numbers.h"

namespace swiftroll {
namespace {

constexpr int kWholePage = 0, kPageWidth = -1;
/// The choices of the zoom, in the order of the list.
constexpr std::array kZooms = {kWholePage, kPageWidth, 25, 50, 75, 100, 125, 150, 200, 300, 400};

std::vector<Text> ZoomTexts() {
    std::vector<Text> texts;
    texts.reserve(kZooms.size());
    for (const int zoom : kZooms) {
        texts.emplace_back(zoom == kWholePage   ? Text("Page entière"_t)
                           : zoom == kPageWidth ? Text("Largeur de page"_t)
                                                : Concat({Decimal(zoom), " %"}));
    }
    return texts;
}

}  // namespace

frmPreview::frmPreview(Application& app)
    : Window("frmPreview"),
      cboZoom(*this, {"cboZoom", "Zoom"}, ZoomTexts()),
      cmdZoomMinus(*this, {"cmdZoomMinus", {}, "Zoom arrière (Ctrl+molette)"_t}),
      Command1(*this, {"Command1", {}, "Zoom avant (Ctrl+molette)"_t}),
      cmdPreviousPage(*this, {"cmdPreviousPage", {}, "Page précédente"_t}),
      cmdNextPage(*this, {"cmdNextPage", {}, "Page suivante"_t}),
      txtPageNr(*this, {"txtPageNr"}, "1"),
      Label1(*this, {"Label1", "Page"}),
      lblPageOn(*this, {"lblPageOn", "sur 1"}),
      chkFitToPage(*this,
                   {"chkFitToPage", "Ajuster à une page"_t,
                    "Réduit le dessin à une seule feuille au lieu de le répartir sur plusieurs."_t},
                   false),
      chkPathPerPage(*this,
                     {"chkPathPerPage", "Un chemin par page"_t,
                      "Chaque chemin commence une nouvelle page. Avec « Ajuster à une page », chacun "
                      "tient sur la sienne."_t},
                     false),
      cmdSetup(*this, {"cmdSetup", "Mise en page..."}),
      cmdPrint(*this, {"cmdPrint", "Imprimer..."}),
      cmdExport(*this, {"cmdExport", "Exporter...", "Enregistre le dessin en PDF ou en SVG."_t}),
      cmdHelp(*this, {"cmdHelp", "Aide"}),
      cmdClose(*this, {"cmdClose", "Fermer"}) {
    Caption = Concat({app.MainCaption(), " - Aperçu avant impression"_t});
    cboZoom.KeepsPick = true;
    cmdZoomMinus.Operation = [this] { Step(-1); };
    Command1.Operation = [this] { Step(1); };
    cmdPreviousPage.Operation = [this] { GoToPage(Page() - 1); };
    cmdNextPage.Operation = [this] { GoToPage(Page() + 1); };
    txtPageNr.OnLostFocus = [this] { GoToPage(Page()); };
    cmdClose.Operation = [this] { Hide(); };
}

int frmPreview::Zoom() const { return kZooms.at(static_cast<std::size_t>(cboZoom.ListIndex())); }

void frmPreview::SetZoom(int percent) {
    const auto nearest = std::min_element(kZooms.begin() + 2, kZooms.end(), [&](int a, int b) {
        return std::abs(a - percent) < std::abs(b - percent);
    });
    cboZoom.SetListIndex(static_cast<int>(nearest - kZooms.begin()));
}

/// The next larger or smaller zoom; those that fit the page stand before the others.
void frmPreview::Step(int direction) {
    const int smallest = 2, largest = static_cast<int>(kZooms.size()) - 1;
    const int index =
        cboZoom.ListIndex() < smallest ? (direction > 0 ? 5 : smallest) : cboZoom.ListIndex() + direction;
    cboZoom.SetListIndex(std::clamp(index, smallest, largest));
}

int frmPreview::Page() const {
    const auto number = ParseDecimal(txtPageNr.Get()).value_or(1);
    return static_cast<int>(std::clamp<std::int64_t>(number, 1, pageCount_));
}

void frmPreview::GoToPage(int page) { txtPageNr.SetText(Decimal(std::clamp(page, 1, pageCount_))); }

void frmPreview::Open() {
    GoToPage(1);
    Show();
}

void frmPreview::SetPageCount(int count) {
    pageCount_ = std::max(count, 1);
    lblPageOn.Caption = Concat({"sur ", Decimal(pageCount_)});
    GoToPage(Page());
    cmdPreviousPage.Enabled = cmdNextPage.Enabled = pageCount_ > 1;
}

}  // namespace swiftroll
