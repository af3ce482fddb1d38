#include "core/record_syntax.h"

#include "core/code_page.h"
#include "core/failure.h"
#include "core/numbers.h"

#include <algorithm>

namespace {

constexpr std::string_view byte_order_mark = "\xEF\xBB\xBF";

bool is_blank(char c) { return c == ' ' || c == '\t'; }
bool is_separator(char c) { return c == ',' || c == '\r' || c == '\n'; }

bool equal_ignoring_case(std::string_view a, std::string_view b) { return lower_case(a) == lower_case(b); }

/// Most numbers in a file are short and whole; false when this one is not.
bool short_whole_number(std::string_view text, std::int32_t& value) {
    const bool negative = text.front() == '-';
    const std::string_view digits = text.substr(negative ? 1 : 0);
    if (digits.empty() || digits.size() > 9) return false;
    std::int32_t sum = 0;
    for (const char c : digits) {
        if (c < '0' || c > '9') return false;
        sum = sum * 10 + (c - '0');
    }
    value = negative ? -sum : sum;
    return true;
}

} // namespace

FieldReader::FieldReader(std::string_view bytes) : bytes(bytes) {
    if (bytes.starts_with(byte_order_mark)) at = byte_order_mark.size();
}

void FieldReader::pass_blanks() {
    while (at < bytes.size() && is_blank(bytes[at])) ++at;
}

void FieldReader::pass_separator() {
    if (at == bytes.size() || !is_separator(bytes[at])) return;
    const bool carriage_return = bytes[at++] == '\r';
    if (carriage_return && at < bytes.size() && bytes[at] == '\n') ++at;
}

std::string_view FieldReader::field() {
    pass_blanks();
    if (at == bytes.size()) throw Failure{failure::past_end_of_file};
    std::string_view value;
    if (bytes[at] == '"') {
        const std::size_t from = at + 1;
        const std::size_t quote = bytes.find('"', from);
        const std::size_t end = std::min(quote, bytes.size());
        value = bytes.substr(from, end - from);
        at = std::min(end + 1, bytes.size());
        // What stands behind a closing quote without a separator begins the next field.
        pass_blanks();
    } else {
        const std::size_t from = at;
        while (at < bytes.size() && !is_separator(bytes[at])) ++at;
        value = bytes.substr(from, at - from);
        while (!value.empty() && is_blank(value.back())) value.remove_suffix(1);
    }
    pass_separator();
    return value;
}

std::string FieldReader::text() { return std::string(field()); }

double FieldReader::number() {
    const std::string_view value = field();
    std::int32_t whole = 0;
    if (value.empty()) return 0;
    if (short_whole_number(value, whole)) return whole;
    return to_double(value);
}

std::int16_t FieldReader::int16() { return to_int16(number()); }

std::int32_t FieldReader::long_integer() { return to_long(number()); }

float FieldReader::single() {
    const std::string_view value = field();
    std::int32_t whole = 0;
    if (value.empty()) return 0;
    if (short_whole_number(value, whole)) return static_cast<float>(whole);
    return to_single(value);
}

double FieldReader::double_number() { return number(); }

bool FieldReader::boolean() {
    const std::string_view value = field();
    if (equal_ignoring_case(value, "#TRUE#")) return true;
    if (value.empty() || equal_ignoring_case(value, "#FALSE#")) return false;
    return to_double(value) != 0;
}

bool FieldReader::at_end() const { return bytes.find_first_not_of(" \t\r\n", at) == std::string_view::npos; }

void FieldWriter::grow(std::size_t most) { room.resize(std::max(2 * room.size(), length + most)); }

char* FieldWriter::next_field(std::size_t most) {
    char* at = next(most + 1);
    if (!first) *at++ = ',';
    first = false;
    return at;
}

FieldWriter& FieldWriter::text(std::string_view value) {
    char* at = next_field(value.size() + 2);
    *at++ = '"';
    at = std::copy(value.begin(), value.end(), at);
    *at++ = '"';
    advance_to(at);
    return *this;
}

FieldWriter& FieldWriter::text_with(char instead_of_quote, std::string_view value) {
    text(value);
    char* const end = room.data() + length - 1;
    std::replace(end - value.size(), end, '"', instead_of_quote);
    return *this;
}

FieldWriter& FieldWriter::integer(std::int64_t value) {
    char* const at = next_field(longest_integer);
    advance_to(write_integer(at, value));
    return *this;
}

FieldWriter& FieldWriter::single(float value) {
    char* const at = next_field(longest_decimal);
    advance_to(write_decimal(at, value));
    return *this;
}

FieldWriter& FieldWriter::double_number(double value) {
    char* const at = next_field(longest_decimal);
    advance_to(write_decimal(at, value));
    return *this;
}

FieldWriter& FieldWriter::boolean(bool value) {
    const std::string_view word = value ? "#TRUE#" : "#FALSE#";
    advance_to(std::copy(word.begin(), word.end(), next_field(word.size())));
    return *this;
}

void FieldWriter::end_record() {
    char* at = next(2);
    *at++ = '\r';
    *at++ = '\n';
    advance_to(at);
    first = true;
}
