#include "preview_dialog.h"

#include <QFileDialog>
#include <QHBoxLayout>
#include <QMessageBox>
#include <QPageSetupDialog>
#include <QPrintDialog>
#include <QVBoxLayout>

#include "drawing/kinship_print.h"
#include "drawing_files/pdf_pages.h"
#include "drawing_files/svg_file.h"
#include "help_topics.h"
#include "layout.h"
#include "preview_canvas.h"
#include "qt_surface.h"
#include "qt_text.h"

namespace swiftroll::ui {
namespace {

constexpr qreal kTwipsPerInch = 1440, kTwipsPerPoint = 20;
constexpr int kZoomLength = 12;            // "Page entière"
constexpr QMarginsF kMargins(8, 8, 8, 8);  // millimetres

modPreview::Paper PaperOf(const QPageLayout& layout) {
    const QRectF full = layout.fullRect(QPageLayout::Point), inner = layout.paintRect(QPageLayout::Point);
    return {full.width() * kTwipsPerPoint,
            full.height() * kTwipsPerPoint,
            {inner.left() * kTwipsPerPoint, inner.top() * kTwipsPerPoint, inner.right() * kTwipsPerPoint,
             inner.bottom() * kTwipsPerPoint}};
}

}  // namespace

PreviewDialog::PreviewDialog(Presenter& presenter, modPreview::RecordedDrawing& drawing, QWidget* owner)
    : SecondaryDialog(presenter, presenter.Main().preview, owner),
      presenter_(presenter),
      form_(presenter.Main().preview),
      drawing_(drawing),
      binder_(presenter, form_),
      layout_(QPageSize(QPageSize::A4), QPageLayout::Landscape, kMargins, QPageLayout::Millimeter) {
    setObjectName(QStringLiteral("frmPreview"));
    setSizeGripEnabled(true);
    helpTopic = Topic::Preview;
    setWindowFlag(Qt::WindowMaximizeButtonHint);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
    column->setSpacing(kSpacing);
    column->addWidget(BuildTools());
    canvas_ = new PreviewCanvas;
    canvas_->OnZoom = [this](int direction) {
        presenter_.Act([&] { (direction > 0 ? form_.Command1 : form_.cmdZoomMinus).Click(); });
    };
    column->addWidget(canvas_, 1);
    BindCommands();
    form_.Place.resizable = true;
    presenter_.Refresh();  // the captions count
    setMinimumSize(QSize(900, 640).expandedTo(minimumSizeHint()));
    resize(minimumSize());
    sheets_ =
        std::make_unique<modPreview::DrawingSheets>(drawing_, PaperOf(layout_), modPreview::SheetLayout{});
    presenter_.OnRefresh([this] { Refresh(); });
}

QWidget* PreviewDialog::BuildTools() {
    auto* widget = new QWidget;
    auto* row = new QHBoxLayout(widget);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(kSpacing);
    auto* zoom = new QComboBox;
    zoom->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    zoom->setMinimumContentsLength(kZoomLength);
    binder_.Bind(*zoom, form_.cboZoom, QStringLiteral("Zoom"));
    row->addWidget(NewToolButton(binder_, form_.cmdZoomMinus, QStringLiteral("Zoom arrière"),
                                 QStringLiteral("zoom-out")));
    row->addWidget(zoom);
    row->addWidget(
        NewToolButton(binder_, form_.Command1, QStringLiteral("Zoom avant"), QStringLiteral("zoom-in")));
    row->addSpacing(2 * kSpacing);
    row->addWidget(NewToolButton(binder_, form_.cmdPreviousPage, QStringLiteral("Page précédente"),
                                 QStringLiteral("previous")));
    auto* label = new QLabel;
    binder_.Bind(*label, form_.Label1);
    row->addWidget(label);
    row->addWidget(NewTextBox(binder_, form_.txtPageNr, 4, QStringLiteral("Numéro de la page")));
    auto* count = new QLabel;
    binder_.Bind(*count, form_.lblPageOn);
    row->addWidget(count);
    row->addWidget(
        NewToolButton(binder_, form_.cmdNextPage, QStringLiteral("Page suivante"), QStringLiteral("next")));
    row->addSpacing(2 * kSpacing);
    row->addWidget(NewCheckBox(binder_, form_.chkFitToPage));
    row->addWidget(NewCheckBox(binder_, form_.chkPathPerPage));
    row->addStretch(1);
    for (Command* command : {&form_.cmdSetup, &form_.cmdExport, &form_.cmdPrint, &form_.cmdClose}) {
        row->addWidget(NewButton(binder_, *command));
    }
    return widget;
}

void PreviewDialog::BindCommands() {
    drawing_.OnOpen = [this] {
        layout_.setOrientation(drawing_.IsLandscape() ? QPageLayout::Landscape : QPageLayout::Portrait);
        form_.Open();
    };
    drawing_.OnClose = [this] { LayOut(); };
    form_.chkFitToPage.OnClick = form_.chkPathPerPage.OnClick = [this] { LayOut(); };
    form_.cmdPrint.Operation = [this] { Print(); };
    form_.cmdSetup.Operation = [this] { SetUp(); };
    form_.cmdExport.Operation = [this] { Export(); };
    form_.cmdHelp.Operation = [this] { presenter_.Main().LaunchHTMLHelp(helpTopic); };
}

void PreviewDialog::LayOut() {
    sheets_ = std::make_unique<modPreview::DrawingSheets>(drawing_, PaperOf(layout_), form_.Layout());
    form_.SetPageCount(sheets_->Count());
    // The canvas may be painted before the next refresh, and must not hold the former sheets.
    Refresh();
}

void PreviewDialog::Refresh() {
    if (isVisible()) canvas_->Show(*sheets_, form_.Page() - 1, form_.Zoom());
}

void PreviewDialog::resizeEvent(QResizeEvent* event) {
    SecondaryDialog::resizeEvent(event);
    Refresh();
}

/// Prints the sheets from `first` to `last`, numbered from 1; false when the device fails.
bool PreviewDialog::PrintOn(QPagedPaintDevice& device, int first, int last) {
    QPainter painter;
    if (!painter.begin(&device)) return false;
    const qreal scale = device.logicalDpiX() / kTwipsPerInch;
    QtFontShapes shapes;
    QtSurface surface(painter, shapes);
    for (int sheet = first; sheet <= last; ++sheet) {
        if (sheet != first && !device.newPage()) return false;
        painter.save();
        painter.scale(scale, scale);
        sheets_->Draw(surface, sheet - 1);
        painter.restore();
    }
    return painter.end();
}

void PreviewDialog::Print() {
    QPrinter printer(QPrinter::HighResolution);
    printer.setPageLayout(layout_);
    printer.setFullPage(true);
    printer.setDocName(ToQt(drawing_.Title()));
    QPrintDialog dialog(&printer, this);
    dialog.setMinMax(1, sheets_->Count());
    if (dialog.exec() != QDialog::Accepted) return;
    Print(printer);
}

void PreviewDialog::Print(QPrinter& printer) {
    const bool all = printer.fromPage() == 0;
    const int last = all ? sheets_->Count() : std::min(printer.toPage(), sheets_->Count());
    if (PrintOn(printer, all ? 1 : printer.fromPage(), last)) return;
    modPrint::TellPrintFailure(presenter_.Main(),
                               Failure(FailureKind::Printer, FromQt(printer.printerName())));
}

void PreviewDialog::SetUp() {
    QPrinter printer(QPrinter::HighResolution);
    printer.setPageLayout(layout_);
    QPageSetupDialog dialog(&printer, this);
    if (dialog.exec() != QDialog::Accepted) return;
    layout_ = printer.pageLayout();
    LayOut();
}

void PreviewDialog::Export() {
    const QString pdf = QStringLiteral("PDF (*.pdf)"), svg = QStringLiteral("SVG (*.svg)");
    QString filter = pdf;
    QString name = ToQt(drawing_.Title());
    for (const char c : {'"', '/', '\\', ':', '*', '?', '|', '<', '>'})
        name.replace(QLatin1Char(c), QLatin1Char(' '));
    const QString folder = EditableToQt(presenter_.Main().sUserMyDocuments);
    QString file = QFileDialog::getSaveFileName(this, QStringLiteral("Exporter le dessin"),
                                                folder + QLatin1Char('/') + name + QStringLiteral(".pdf"),
                                                pdf + QStringLiteral(";;") + svg, &filter);
    if (file.isEmpty()) return;
    const bool isSvg = file.endsWith(QStringLiteral(".svg"), Qt::CaseInsensitive);
    try {
        isSvg ? WriteSvg(FromQt(file)) : WritePdf(FromQt(file));
        presenter_.Main().pnlMessage.Set(FromQt(file + QStringLiteral(" : Terminé")));
    } catch (const std::exception&) {
        presenter_.Main().Box(
            " - Export",
            FromQt(QStringLiteral("Le fichier n'a pas pu être écrit : vérifiez le dossier, vos "
                                  "droits et la place libre.\r\n") +
                   file),
            BoxButtons::Ok, BoxIcon::Exclamation);
    }
}

void PreviewDialog::WritePdf(TextView file) {
    frmMain& main = presenter_.Main();
    const auto target = main.ports.files.Open(file, Files::Mode::Write);
    modDrawingFiles::PdfPages pages(*target, {drawing_.Title(), main.MainCaption(), main.ports.clock.Now()});
    pages.Add(*sheets_);
    pages.Finish();
    target->Close();
}

void PreviewDialog::WriteSvg(TextView file) {
    modDrawingFiles::SvgFile target(presenter_.Main().ports.files, file);
    target.Open(drawing_.Title(), 0, 0);
    drawing_.Draw(target, {0, 0, drawing_.Width() + 1, drawing_.Height() + 1});
    target.Close();
}

}  // namespace swiftroll::ui
