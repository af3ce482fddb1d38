#include "widgets/area_scaler.h"

#include <algorithm>

namespace {

// Sums of bytes in 16 bits hold this many rows; a target row that stands for more takes the first of them.
constexpr int most_rows = 257;

int start_of(int target, int source_size, int target_size) {
    return static_cast<int>(static_cast<std::int64_t>(target) * source_size / target_size);
}

} // namespace

AreaScaler::AreaScaler(int source_width, int source_height, int width, int height)
    : source_width(source_width), source_height(source_height), scaled(width, height, QImage::Format_RGB888),
      sums(static_cast<std::size_t>(source_width) * 3), column_starts(static_cast<std::size_t>(width) + 1) {
    for (int x = 0; x <= width; ++x)
        column_starts[static_cast<std::size_t>(x)] = start_of(x, source_width, width);
    scaled.fill(Qt::white);
}

void AreaScaler::add_row(const std::uint8_t* rgb) {
    if (rows_summed < most_rows) {
        const std::size_t count = sums.size();
        std::uint16_t* const sum = sums.data();
        for (std::size_t i = 0; i < count; ++i) sum[i] = static_cast<std::uint16_t>(sum[i] + rgb[i]);
        ++rows_summed;
    }
    ++source_row;
    // A picture smaller than its copy gives several target rows from one of its own.
    while (target_row < scaled.height() &&
           source_row >= std::max(1, start_of(target_row + 1, source_height, scaled.height())))
        finish_row();
}

void AreaScaler::finish_row() {
    std::uint8_t* const line = scaled.scanLine(target_row++);
    for (int x = 0; x < scaled.width(); ++x) {
        const int first = std::min(column_starts[static_cast<std::size_t>(x)], source_width - 1);
        const int last = std::max(first + 1, column_starts[static_cast<std::size_t>(x) + 1]);
        const int pixels = (last - first) * std::max(1, rows_summed);
        for (int channel = 0; channel < 3; ++channel) {
            std::uint32_t sum = 0;
            for (int i = first; i < last; ++i) sum += sums[static_cast<std::size_t>(i * 3 + channel)];
            line[x * 3 + channel] = static_cast<std::uint8_t>(sum / static_cast<std::uint32_t>(pixels));
        }
    }
    const bool row_used_up =
        target_row >= scaled.height() ||
        source_row < std::max(1, start_of(target_row + 1, source_height, scaled.height()));
    if (!row_used_up) return;
    std::fill(sums.begin(), sums.end(), std::uint16_t{0});
    rows_summed = 0;
}
