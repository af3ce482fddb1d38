#include "widgets/jpeg_reader.h"

#include "core/failure.h"

#include <csetjmp>
#include <cstdio>

#include <jpeglib.h>

/// The library tells errors by a long jump. Every call into it stands alone in a procedure without objects to
/// destroy, which turns the jump into an answer.
struct JpegReader::Decoder {
    jpeg_decompress_struct info{};
    jpeg_error_mgr errors{};
    std::jmp_buf escape{};

    Decoder() {
        info.err = jpeg_std_error(&errors);
        info.client_data = this;
        errors.error_exit = [](j_common_ptr common) {
            std::longjmp(static_cast<Decoder*>(common->client_data)->escape, 1);
        };
        errors.output_message = [](j_common_ptr) {};
    }
    Decoder(const Decoder&) = delete;
    Decoder& operator=(const Decoder&) = delete;
    ~Decoder() { jpeg_destroy_decompress(&info); }

    bool read_header(const std::string& bytes) {
        if (setjmp(escape) != 0) return false;
        jpeg_create_decompress(&info);
        jpeg_mem_src(&info, reinterpret_cast<const unsigned char*>(bytes.data()), bytes.size());
        return jpeg_read_header(&info, TRUE) == JPEG_HEADER_OK;
    }

    bool start() {
        if (setjmp(escape) != 0) return false;
        info.out_color_space = JCS_RGB;
        return jpeg_start_decompress(&info) != FALSE;
    }

    bool read_row(std::uint8_t* row) {
        if (setjmp(escape) != 0) return false;
        return jpeg_read_scanlines(&info, &row, 1) == 1 && errors.num_warnings == 0;
    }

    bool finish() {
        if (setjmp(escape) != 0) return false;
        return jpeg_finish_decompress(&info) != FALSE && errors.num_warnings == 0;
    }
};

JpegReader::JpegReader(const std::string& bytes) : decoder(std::make_unique<Decoder>()) {
    if (!decoder->read_header(bytes) || !decoder->start()) throw Failure{failure::invalid_picture};
}

JpegReader::~JpegReader() = default;

int JpegReader::width() const { return static_cast<int>(decoder->info.output_width); }
int JpegReader::height() const { return static_cast<int>(decoder->info.output_height); }

void JpegReader::read_row(std::uint8_t* rgb) {
    if (!decoder->read_row(rgb)) throw Failure{failure::invalid_picture};
}

void JpegReader::finish() {
    if (!decoder->finish()) throw Failure{failure::invalid_picture};
}
