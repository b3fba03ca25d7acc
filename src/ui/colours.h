#pragma once

#include <QColor>
#include <cstdint>

namespace swiftroll::ui {

/// A colour of the core, 0x00BBGGRR, as one of the toolkit, and back.
inline QColor ColourOf(std::uint32_t colour) {
    return QColor(static_cast<int>(colour & 0xFF), static_cast<int>((colour >> 8) & 0xFF),
                  static_cast<int>((colour >> 16) & 0xFF));
}
inline std::uint32_t ColourFrom(const QColor& colour) {
    return static_cast<std::uint32_t>(colour.red()) | static_cast<std::uint32_t>(colour.green()) << 8 |
           static_cast<std::uint32_t>(colour.blue()) << 16;
}
/// The colour, lighter where the ground is dark.
inline QColor LegibleOn(const QColor& ground, const QColor& colour) {
    return ground.lightness() < 128 ? colour.lighter(150) : colour;
}

}  // namespace swiftroll::ui
