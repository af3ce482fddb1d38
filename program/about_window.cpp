#include "program/about_window.h"

#include <QDialogButtonBox>
#include <QIcon>
#include <QLabel>
#include <QPixmap>
#include <QPushButton>
#include <QVBoxLayout>

namespace {

constexpr QSize legend_size(560, 600);
constexpr QSize icon_size(96, 96);

QLabel* picture(const char* file, const QSize& size, const QString& described) {
    auto* const label = new QLabel;
    label->setPixmap(QIcon(file).pixmap(size));
    label->setAccessibleName(described);
    label->setAlignment(Qt::AlignCenter);
    return label;
}

QDialogButtonBox* close_row(QPushButton* close) {
    auto* const buttons = new QDialogButtonBox;
    close->setDefault(true);
    buttons->addButton(close, QDialogButtonBox::RejectRole);
    return buttons;
}

} // namespace

frmMapLegend_window::frmMapLegend_window(frmMapLegend& form, EventRunner& events, QWidget* parent)
    : FormWindow(form, events, parent) {
    auto* const page = new QVBoxLayout(this);
    page->addWidget(picture(":/pictures/map_legend.svg", legend_size, "The signs of the map"));
    page->addWidget(close_row(button("cmdClose", "Close", [&form] { form.cmdClose_Click(); })));
}

frmAboutMap_window::frmAboutMap_window(frmAboutMap& form, EventRunner& events, QWidget* parent)
    : FormWindow(form, events, parent) {
    auto* const page = new QVBoxLayout(this);
    page->addWidget(heading(form.title));
    page->addWidget(text(form.scale));
    page->addWidget(close_row(button("cmdClose", "Close", [&form] { form.cmdClose_Click(); })));
}

frmAboutTolvaneII_window::frmAboutTolvaneII_window(frmAboutTolvaneII& form, EventRunner& events,
                                                   QWidget* parent)
    : FormWindow(form, events, parent) {
    auto* const page = new QVBoxLayout(this);
    page->addWidget(picture(":/pictures/program.svg", icon_size, "The program's sign"));
    page->addWidget(heading(form.heading), 0, Qt::AlignCenter);
    page->addWidget(text(form.version), 0, Qt::AlignCenter);
    page->addWidget(text(form.date), 0, Qt::AlignCenter);
    page->addWidget(close_row(button("cmdClose", "Close", [&form] { form.cmdClose_Click(); })));
}
