#pragma once

#include <cstdint>
#include <string>
#include <string_view>

// The syntax of all data files: fields separated by commas, texts in double quotes, a record a line, lines
// ended by CR LF, Booleans as #TRUE# and #FALSE#. There is no escape for a quote.

/// Reads a file field by field; line ends are separators like commas, outside quotes. Every procedure takes
/// the next field and fails with 62 at the end of the file.
class FieldReader {
  public:
    /// The bytes must outlive the reader. A byte order mark at their front is passed over.
    explicit FieldReader(std::string_view bytes);

    std::string text();
    /// Fails with 13 when the field is no number, with 6 out of range; an empty field is 0. A fraction is
    /// rounded half to even.
    std::int16_t int16();
    std::int32_t long_integer();
    float single();
    double double_number();
    /// Fails with 13 unless the field is #TRUE#, #FALSE#, empty or a number.
    bool boolean();

    /// Whether only blanks and line ends are left.
    bool at_end() const;

  private:
    std::string_view field();
    double number();
    void pass_blanks();
    void pass_separator();

    std::string_view bytes;
    std::size_t at = 0;
};

/// Puts records together.
class FieldWriter {
  public:
    FieldWriter& text(std::string_view value);
    /// The text with another character in the place of each double quote.
    FieldWriter& text_with(char instead_of_quote, std::string_view value);
    FieldWriter& integer(std::int64_t value);
    FieldWriter& single(float value);
    FieldWriter& double_number(double value);
    FieldWriter& boolean(bool value);
    void end_record();

    std::string_view bytes() const { return {room.data(), length}; }
    void clear() { length = 0; }

  private:
    /// Where the next so many characters go, at the most; `advance_to` then tells where they end.
    char* next(std::size_t most) {
        if (length + most > room.size()) grow(most);
        return room.data() + length;
    }
    void grow(std::size_t most);
    void advance_to(const char* end) { length = static_cast<std::size_t>(end - room.data()); }
    /// The place behind the comma that a field needs, unless it is its record's first.
    char* next_field(std::size_t most);

    std::string room;
    std::size_t length = 0;
    bool first = true;
};
