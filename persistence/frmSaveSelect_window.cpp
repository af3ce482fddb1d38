#include "persistence/frmSaveSelect_window.h"

#include <QCheckBox>
#include <QDialogButtonBox>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

frmSaveSelect_window::frmSaveSelect_window(frmSaveSelect& form, EventRunner& events, QWidget* parent)
    : FormWindow(form, events, parent) {
    auto* const page = new QVBoxLayout(this);
    page->addWidget(heading(form.heading));
    page->addWidget(check_box("chkSaveUnits", "Units", form.chkSaveUnits));
    page->addWidget(check_box("chkSaveShapes", "Shapes", form.chkSaveShapes));
    page->addWidget(check_box("chkSaveLabels", "Labels", form.chkSaveLabels));
    page->addWidget(check_box("chkSavePolygons", "Polygons", form.chkSavePolygons));
    page->addWidget(check_box("chkSaveLines", "Lines", form.chkSaveLines));
    page->addWidget(check_box("chkSaveFmissions", "Firemissions", form.chkSaveFmissions));
    auto* const buttons = new QDialogButtonBox;
    QPushButton* const ok = button("cmdOK", "OK", [&form] { form.cmdOK_Click(); });
    ok->setDefault(true);
    buttons->addButton(ok, QDialogButtonBox::AcceptRole);
    page->addWidget(buttons);
    bring_in_step();
}
