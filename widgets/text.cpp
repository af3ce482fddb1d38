#include "widgets/text.h"

#include "core/code_page.h"

QString to_qt(const std::string& text) {
    QString result;
    result.reserve(static_cast<qsizetype>(text.size()));
    for (const char c : text)
        result += QChar(static_cast<char16_t>(character_of(static_cast<unsigned char>(c))));
    return result;
}

std::string from_qt(const QString& text) {
    // A letter and its mark may come as two characters; together they may have a byte.
    const QString composed = text.normalized(QString::NormalizationForm_C);
    std::string result;
    result.reserve(static_cast<std::size_t>(composed.size()));
    for (const QChar character : composed)
        if (!character.isLowSurrogate()) result += byte_of(character.unicode());
    return result;
}
