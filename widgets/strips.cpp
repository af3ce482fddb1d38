#include "widgets/strips.h"

#include <QSemaphore>
#include <QThreadPool>

#include <algorithm>

void paint_in_strips(QImage& image, const std::function<void(QPainter&, const QRectF&)>& paint) {
    // In a thread of this pool the library also fills a figure in one go. Elsewhere it deals each one out to
    // the pool and waits, which takes longer than the filling.
    QThreadPool& pool = *QThreadPool::globalInstance();
    constexpr int most = 8;
    const int count = std::clamp(pool.maxThreadCount(), 1, most);
    const double scale = image.devicePixelRatio();
    uchar* const bits = image.bits();
    QSemaphore done;
    for (int i = 0; i < count; ++i) {
        const int top = image.height() * i / count;
        const int bottom = image.height() * (i + 1) / count;
        pool.start([&, top, bottom] {
            QImage strip(bits + top * image.bytesPerLine(), image.width(), bottom - top,
                         static_cast<int>(image.bytesPerLine()), image.format());
            strip.setDevicePixelRatio(scale);
            {
                QPainter painter(&strip);
                painter.translate(0, -top / scale);
                paint(painter, {0, top / scale, image.width() / scale, (bottom - top) / scale});
            }
            done.release();
        });
    }
    done.acquire(count);
}
