#pragma once

#include "app/arranged_tables.h"
#include "app/option_record.h"
#include "app/product.h"
#include "writers/variables.h"

namespace swiftroll::modGenFileFromModel {

/// What every writer works with: the list, the options of its index, what its document tells of itself, the
/// files, and how failures are told.
struct ListSource {
    ArrangedTables& tables;
    const OptionRecord& options;
    const Product& product;
    ListOrigin origin;
    Files& files;
    Clock& clock;
    Feedback& feedback;
};

}  // namespace swiftroll::modGenFileFromModel
