#pragma once

#include <cstdint>
#include <memory>
#include <string>

/// Decodes a JPEG picture row by row, straight into RGB bytes. Everything fails with 481 on a picture that is
/// damaged: also where the decoder would only warn and go on with grey.
class JpegReader {
  public:
    /// The bytes must outlive the reader.
    explicit JpegReader(const std::string& bytes);
    JpegReader(const JpegReader&) = delete;
    JpegReader& operator=(const JpegReader&) = delete;
    ~JpegReader();

    int width() const;
    int height() const;
    void read_row(std::uint8_t* rgb);
    void finish();

  private:
    struct Decoder;
    std::unique_ptr<Decoder> decoder;
};
