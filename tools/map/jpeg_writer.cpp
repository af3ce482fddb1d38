#include "tools/map/jpeg_writer.h"

#include <cstdio>
#include <memory>

#include <jpeglib.h>

bool write_jpeg(const QImage& image, const std::string& path) {
    constexpr int quality = 89;
    const std::unique_ptr<FILE, int (*)(FILE*)> file(std::fopen(path.c_str(), "wb"), std::fclose);
    if (!file) return false;
    jpeg_compress_struct info{};
    jpeg_error_mgr errors{};
    info.err = jpeg_std_error(&errors);
    jpeg_create_compress(&info);
    jpeg_stdio_dest(&info, file.get());
    info.image_width = static_cast<JDIMENSION>(image.width());
    info.image_height = static_cast<JDIMENSION>(image.height());
    info.input_components = 4;
    info.in_color_space = JCS_EXT_BGRX;
    jpeg_set_defaults(&info);
    jpeg_set_quality(&info, quality, TRUE);
    info.comp_info[0].h_samp_factor = 1;
    info.comp_info[0].v_samp_factor = 1;
    jpeg_start_compress(&info, TRUE);
    for (int y = 0; y < image.height(); ++y) {
        JSAMPROW row = const_cast<JSAMPROW>(image.constScanLine(y));
        jpeg_write_scanlines(&info, &row, 1);
    }
    jpeg_finish_compress(&info);
    jpeg_destroy_compress(&info);
    return std::fflush(file.get()) == 0 && std::ferror(file.get()) == 0;
}
