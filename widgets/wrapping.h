#pragma once

#include <QCheckBox>
#include <QPushButton>
#include <QStyleOptionButton>
#include <QStylePainter>

#include <algorithm>
#include <type_traits>

/// A push button or check box whose caption goes on to further lines where one is too narrow for it.
template <class Button> class Wrapping : public Button {
  public:
    Wrapping(const QString& caption, QWidget* parent) : Button(caption, parent) {
        QSizePolicy policy(QSizePolicy::Minimum, QSizePolicy::Fixed);
        policy.setHeightForWidth(true);
        this->setSizePolicy(policy);
    }

    bool hasHeightForWidth() const override { return true; }
    int heightForWidth(int width) const override {
        const QRect text =
            this->fontMetrics().boundingRect(QRect(0, 0, width - beside_text, 1000), flags, this->text());
        return std::max(Button::sizeHint().height(), text.height() + above_and_below);
    }
    QSize sizeHint() const override { return minimumSizeHint(); }
    QSize minimumSizeHint() const override {
        constexpr int narrow = 120;
        return {narrow, heightForWidth(std::max(narrow, this->width()))};
    }

  protected:
    void paintEvent(QPaintEvent* /*event*/) override {
        QStylePainter painter(this);
        QStyleOptionButton option;
        this->initStyleOption(&option);
        option.text.clear();
        painter.drawControl(is_check_box ? QStyle::CE_CheckBox : QStyle::CE_PushButton, option);
        const QRect room = this->style()->subElementRect(
            is_check_box ? QStyle::SE_CheckBoxContents : QStyle::SE_PushButtonContents, &option, this);
        painter.drawItemText(room, flags, option.palette, this->isEnabled(), this->text(),
                             is_check_box ? QPalette::WindowText : QPalette::ButtonText);
    }

  private:
    static constexpr bool is_check_box = std::is_same_v<Button, QCheckBox>;
    static constexpr int flags =
        Qt::TextWordWrap | Qt::AlignVCenter | (is_check_box ? Qt::AlignLeft : Qt::AlignHCenter);
    static constexpr int beside_text = is_check_box ? 24 : 12;
    static constexpr int above_and_below = is_check_box ? 2 : 8;
};
