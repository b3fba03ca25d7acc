#pragma once

#include <optional>

#include "app/feedback.h"

namespace swiftroll::modGenFileFromModel {

/// What a model is read as: HTML, bare text, or an XSL stylesheet.
enum class OutFormat : std::int16_t { Html, Text, Xsl };

inline constexpr TextView kElement = "%ELEMENT%";

/// A model cut round its two sample rows: the first stands for the header row, the second for every data row.
struct ModelPieces {
    Text sModelHead;
    Text sModelRow1Open, sModelCell1, sModelRow1Close;
    Text sModelBetween;
    Text sModelRow2Open, sModelCell2, sModelRow2Close;
    Text sModelTail;
};

/// Cuts the model file. Nothing when it lacks a tag or a marker, which is told in a box, or cannot be read,
/// which is reported.
std::optional<ModelPieces> SplitModel(Files& files, Feedback& feedback, TextView sFile, OutFormat iOutFormat);
/// The same for the bytes of a model; nothing when it lacks a tag or a marker.
std::optional<ModelPieces> SplitModelText(TextView model, OutFormat iOutFormat);

/// All bytes of a file. @throws Failure when it cannot be read
Text ReadWholeFile(Files& files, TextView sFile);

}  // namespace swiftroll::modGenFileFromModel
