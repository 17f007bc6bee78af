#pragma once
// The dialogs of the initial figures: a few boxes each, checked by the figure logic.
#include <QDialog>
#include <optional>

#include "core/host.h"
#include "render/initial_figures.h"

namespace quillane {

// Asks for figure 0 to 6 (outline polygon, filled polygon, line, triangle, rectangle, regular polygon,
// circle), starting from the last accepted values. Nothing on Cancel; messages go through the host and
// keep the dialog open. chkColor starts at `useIFSColors` and writes it back on OK.
std::optional<FigureParameters> AskFigure(QWidget* parent, Host& host, int figure,
                                          const DesignPolygon& polygon,
                                          const std::optional<FigureParameters>& last, bool& useIFSColors);

}  // namespace quillane
