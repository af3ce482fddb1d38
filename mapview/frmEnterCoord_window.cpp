#include "mapview/frmEnterCoord_window.h"

#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

frmEnterCoord_window::frmEnterCoord_window(frmEnterCoord& form, EventRunner& events, QWidget* parent)
    : FormWindow(form, events, parent) {
    auto* const page = new QVBoxLayout(this);
    page->addWidget(heading(form.heading));
    auto* const fields = new QFormLayout;
    fields->addRow("&East:", text_box("txtLongdata", "East", form.txtLongdata,
                                      [&form] { form.txtLongdata_GotFocus(); }));
    fields->addRow("&North:",
                   text_box("txtLatdata", "North", form.txtLatdata, [&form] { form.txtLatdata_GotFocus(); }));
    page->addLayout(fields);
    page->addWidget(text(form.hint));
    auto* const buttons = new QDialogButtonBox;
    QPushButton* const ok = button("cmdOK", "OK", [&form] { form.cmdOK_Click(); });
    ok->setDefault(true);
    buttons->addButton(ok, QDialogButtonBox::AcceptRole);
    buttons->addButton(button("cmdCancel", "Cancel", [&form] { form.cmdCancel_Click(); }),
                       QDialogButtonBox::RejectRole);
    page->addWidget(buttons);
    bring_in_step();
}
