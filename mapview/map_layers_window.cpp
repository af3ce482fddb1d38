#include "mapview/map_layers_window.h"

#include "mapview/painting.h"
#include "widgets/map_image.h"
#include "widgets/painter_surface.h"
#include "widgets/strips.h"

#include <QPainter>

const QImage& MapLayers::image(Program& program, const QRect& part, double scale) {
    cover_view(program);
    const QSize size = (QSizeF(part.size()) * scale).toSize();
    if (painted.size() == size && painted_part == part && painting == program.painting.number) return painted;
    if (painted.size() != size) painted = QImage(size, QImage::Format_RGB32);
    painted.setDevicePixelRatio(scale);
    painted_part = part;
    painting = program.painting.number;
    paint(program);
    return painted;
}

void MapLayers::paint(const Program& program) {
    const auto* const picture = dynamic_cast<const MapImage*>(program.main.picMap.picture.get());
    if (picture == nullptr) return;
    paint_in_strips(painted, [&](QPainter& painter, const QRectF& strip) {
        painter.translate(-painted_part.topLeft());
        const QRectF wanted = strip.translated(painted_part.topLeft());
        // The whole part in each strip, which clips it: at a fractional scale pieces would leave seams.
        painter.drawImage(painted_part.topLeft(), picture->map, painted_part);
        PainterSurface surface(painter);
        surface.wanted = {wanted.left(), wanted.top(), wanted.right(), wanted.bottom()};
        program.painting.map.replay(surface);
    });
}
