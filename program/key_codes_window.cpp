#include "program/key_codes_window.h"

#include "mapview/keys.h"

#include <QKeyEvent>

#include <algorithm>
#include <array>

namespace {

struct KeyRow {
    int qt;
    int code;
};

constexpr std::array<KeyRow, 5> keys{{{Qt::Key_Control, key::ctrl},
                                      {Qt::Key_Left, key::left},
                                      {Qt::Key_Up, key::up},
                                      {Qt::Key_Right, key::right},
                                      {Qt::Key_Down, key::down}}};

// With Num Lock off these keys of the keypad still stand where 7, 9, 3 and 1 do.
constexpr std::array<KeyRow, 4> keypad_corners{{{Qt::Key_Home, key::keypad_0 + 7},
                                                {Qt::Key_PageUp, key::keypad_0 + 9},
                                                {Qt::Key_PageDown, key::keypad_0 + 3},
                                                {Qt::Key_End, key::keypad_0 + 1}}};

template <class Rows> int find_code(const Rows& rows, int qt) {
    const auto row = std::find_if(rows.begin(), rows.end(), [&](const KeyRow& r) { return r.qt == qt; });
    return row == rows.end() ? 0 : row->code;
}

} // namespace

int key_code(const QKeyEvent& event) {
    const bool keypad = event.modifiers() & Qt::KeypadModifier;
    if (keypad && event.key() >= Qt::Key_0 && event.key() <= Qt::Key_9)
        return key::keypad_0 + event.key() - Qt::Key_0;
    if (keypad && find_code(keypad_corners, event.key()) != 0) return find_code(keypad_corners, event.key());
    return find_code(keys, event.key());
}
