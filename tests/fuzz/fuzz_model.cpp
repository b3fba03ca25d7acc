// Any bytes as a model: when it can be cut, its pieces joined are the model again.
#include <cstdint>
#include <cstdlib>

#include "text/edit.h"
#include "writers/model.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace swiftroll;
    using namespace swiftroll::modGenFileFromModel;
    const TextView model(reinterpret_cast<const char*>(data), size);
    for (const OutFormat format : {OutFormat::Html, OutFormat::Text, OutFormat::Xsl}) {
        const auto pieces = SplitModelText(model, format);
        if (!pieces || format == OutFormat::Text) continue;
        const Text joined = Concat({pieces->sModelHead, pieces->sModelRow1Open, pieces->sModelCell1,
                                    pieces->sModelRow1Close, pieces->sModelBetween, pieces->sModelRow2Open,
                                    pieces->sModelCell2, pieces->sModelRow2Close, pieces->sModelTail});
        if (joined != model) std::abort();
    }
    return 0;
}
