#include "screen/strip_style.h"

namespace morvane {

namespace {

// Fills "%felt", "%wood", "%dim", "%dark" and "%cream" with the strip's colours.
QString withColours(QString sheet) {
    return sheet.replace("%felt", kFeltGreen.name())
        .replace("%wood", kRailWood.name())
        .replace("%dim", kRailWoodDim.name())
        .replace("%dark", kDarkWood.name())
        .replace("%cream", kCreamCaption.name());
}

} // namespace

// A felt trough between two wooden end buttons, a wooden handle; greyed wood while balls roll.
QString powerBarStyle() {
    return withColours(R"(
QScrollBar:horizontal { background: %felt; border: 1px solid %dark; margin: 0 16px; }
QScrollBar::handle:horizontal { background: %wood; border: 1px solid %dark; border-radius: 3px;
    min-width: 14px; }
QScrollBar::handle:horizontal:disabled { background: %dim; }
QScrollBar::add-line:horizontal, QScrollBar::sub-line:horizontal { background: %wood;
    border: 1px solid %dark; width: 16px; subcontrol-origin: margin; }
QScrollBar::add-line:horizontal { subcontrol-position: right; }
QScrollBar::sub-line:horizontal { subcontrol-position: left; }
QScrollBar::add-line:horizontal:disabled, QScrollBar::sub-line:horizontal:disabled {
    background: %dim; }
QScrollBar::left-arrow:horizontal, QScrollBar::right-arrow:horizontal { width: 6px; height: 6px;
    background: %dark; }
QScrollBar::add-page:horizontal, QScrollBar::sub-page:horizontal { background: none; }
)");
}

// A wooden button with a dark caption; while balls roll, dimmer wood with a cream caption, still
// plain to read.
QString shotButtonStyle() {
    return withColours(R"(
QPushButton { background: %wood; color: %dark; border: 2px solid %dark; border-radius: 6px; }
QPushButton:hover { border-color: %felt; }
QPushButton:pressed { background: %dim; }
QPushButton:disabled { background: %dim; color: %cream; }
)");
}

} // namespace morvane
