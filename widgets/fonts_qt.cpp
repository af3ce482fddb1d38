#include "widgets/fonts_qt.h"

#include "widgets/text.h"

#include <QFontDatabase>
#include <QFontMetricsF>
#include <QRectF>
#include <QStringList>

#include <algorithm>
#include <array>
#include <cmath>
#include <map>
#include <mutex>

namespace {

/// A font of other systems and the free one with the same widths.
struct StandIn {
    const char* name;
    const char* instead;
};

constexpr std::array<StandIn, 4> stand_ins{{{"Arial", "Liberation Sans"},
                                            {"Times New Roman", "Liberation Serif"},
                                            {"Courier New", "Liberation Mono"},
                                            {"MS Sans Serif", "Liberation Sans"}}};

constexpr double pixels_per_point = 96.0 / 72.0;

QString look_up(const std::string& name) {
    // By what the font dialog lists: the database itself denies some of these families.
    const QStringList families = QFontDatabase::families();
    QString wanted = to_qt(name);
    if (families.contains(wanted, Qt::CaseInsensitive)) return wanted;
    for (const StandIn& stand_in : stand_ins)
        if (wanted.compare(stand_in.name, Qt::CaseInsensitive) == 0 && families.contains(stand_in.instead))
            return stand_in.instead;
    return {};
}

/// The name of the installed font to take, empty when there is none. Asking the system takes longer than
/// printing with the font, and fonts don't come and go while the program runs. Painting threads ask, too.
QString installed_name(const std::string& name) {
    static std::mutex mutex;
    static std::map<std::string, QString> known;
    const std::lock_guard lock(mutex);
    const auto [place, is_new] = known.try_emplace(name);
    if (is_new) place->second = look_up(name);
    return place->second;
}

} // namespace

QFont to_qt_font(const Font& font) {
    const QString installed = installed_name(font.name);
    QFont result(installed.isEmpty() ? to_qt(font.name) : installed);
    result.setPixelSize(std::max(1, static_cast<int>(std::lround(font.size * pixels_per_point))));
    result.setBold(font.bold);
    result.setItalic(font.italic);
    result.setUnderline(font.underline);
    result.setStrikeOut(font.strikethru);
    return result;
}

bool font_is_available(const std::string& name) { return !installed_name(name).isEmpty(); }

TextSize measure_text(const std::string& text, const Font& font) {
    const QRectF box = QFontMetricsF(to_qt_font(font))
                           .boundingRect(QRectF(0, 0, 1, 1), Qt::AlignLeft | Qt::TextDontClip, to_qt(text));
    return {std::ceil(box.width()), std::ceil(box.height())};
}
