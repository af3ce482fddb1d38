#pragma once

#include <QImage>

#include <cstdint>
#include <vector>

/// Makes a reduced copy of a picture while its rows come in, so that the large picture is gone through once.
/// Each target pixel is the mean of the pixels it stands for.
class AreaScaler {
  public:
    AreaScaler(int source_width, int source_height, int width, int height);

    /// Takes the next row of RGB bytes.
    void add_row(const std::uint8_t* rgb);
    QImage take() { return std::move(scaled); }

  private:
    void finish_row();

    int source_width;
    int source_height;
    QImage scaled;
    std::vector<std::uint16_t> sums; // of the rows that make one target row
    std::vector<int> column_starts;
    int source_row = 0;
    int target_row = 0;
    int rows_summed = 0;
};
