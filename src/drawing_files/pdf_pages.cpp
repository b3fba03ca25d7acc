#include "drawing_files/pdf_pages.h"

#include <cairo-pdf.h>

#include "drawing_files/cairo_surface.h"
#include "text/code_page.h"
#include "text/edit.h"
#include "text/failure.h"
#include "text/numbers.h"

namespace swiftroll::modDrawingFiles {
namespace {

constexpr double kTwipsPerPoint = 20;

/// "2026-11-22T14:05:09Z": one form whatever the zone of the machine, as the clock tells the time.
std::string IsoTime(const Moment& moment) {
    return Concat({Decimal(moment.year, 4), "-", Decimal(moment.month, 2), "-", Decimal(moment.day, 2), "T",
                   Decimal(moment.hour, 2), ":", Decimal(moment.minute, 2), ":", Decimal(moment.second, 2),
                   "Z"});
}

}  // namespace

/// The document as the library knows it. What it writes goes to the file, and a failure there is kept, since
/// none may pass through the library.
struct PdfPages::Document {
    explicit Document(File& theFile) : file(theFile) {
        const auto write = [](void* self, const unsigned char* bytes, unsigned length) {
            return static_cast<Document*>(self)->Write({reinterpret_cast<const char*>(bytes), length});
        };
        surface = cairo_pdf_surface_create_for_stream(write, this, 1, 1);
    }
    ~Document() { cairo_surface_destroy(surface); }
    Document(const Document&) = delete;
    Document& operator=(const Document&) = delete;

    cairo_status_t Write(TextView bytes) {
        try {
            if (!failure) file.Write(bytes);
        } catch (...) {
            failure = std::current_exception();
        }
        return failure ? CAIRO_STATUS_WRITE_ERROR : CAIRO_STATUS_SUCCESS;
    }

    File& file;
    cairo_surface_t* surface;
    FontFaces faces;
    std::exception_ptr failure;
};

PdfPages::PdfPages(File& file, const DocumentFacts& facts) : document_(std::make_unique<Document>(file)) {
    const auto tell = [&](cairo_pdf_metadata_t what, const std::string& text) {
        cairo_pdf_surface_set_metadata(document_->surface, what, text.c_str());
    };
    tell(CAIRO_PDF_METADATA_TITLE, ToUtf8(facts.title));
    tell(CAIRO_PDF_METADATA_CREATOR, ToUtf8(facts.creator));
    tell(CAIRO_PDF_METADATA_CREATE_DATE, IsoTime(facts.made));
}

PdfPages::~PdfPages() = default;

void PdfPages::Add(const modPreview::DrawingSheets& sheets) {
    const modPreview::Paper& paper = sheets.Sheet();
    cairo_pdf_surface_set_size(document_->surface, paper.width / kTwipsPerPoint,
                               paper.height / kTwipsPerPoint);
    for (int i = 0; i < sheets.Count(); ++i) {
        const std::unique_ptr<cairo_t, decltype(&cairo_destroy)> context(cairo_create(document_->surface),
                                                                         cairo_destroy);
        CairoSurface surface(*context, shapes_, document_->faces);
        sheets.Draw(surface, i);
        cairo_show_page(context.get());
        ++count_;
        Check();
    }
}

void PdfPages::Finish() {
    cairo_surface_finish(document_->surface);
    Check();
}

void PdfPages::Check() {
    if (document_->failure) std::rethrow_exception(document_->failure);
    const cairo_status_t status = cairo_surface_status(document_->surface);
    if (status == CAIRO_STATUS_NO_MEMORY) throw Failure(FailureKind::OutOfMemory);
    if (status != CAIRO_STATUS_SUCCESS)
        throw Failure(FailureKind::FileAccess, cairo_status_to_string(status));
}

}  // namespace swiftroll::modDrawingFiles
