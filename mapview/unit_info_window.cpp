#include "mapview/unit_info_window.h"

#include "mapview/unit_info.h"
#include "widgets/text.h"

#include <QCheckBox>
#include <QFontMetrics>
#include <QGridLayout>
#include <QLabel>
#include <QListView>
#include <QPushButton>
#include <QVBoxLayout>

namespace {

void show_whole(QLabel* label) {
    label->setWordWrap(true);
    label->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
}

QLabel* fixed_text(const char* text) {
    auto* const label = new QLabel(text);
    label->setEnabled(true);
    return label;
}

} // namespace

UnitInfoView::UnitInfoView(Program& program, const Sprites& sprites, std::span<const UnitInfoButton> buttons,
                           double area_top, EventRunner& events, QWidget* parent)
    : SidePanel("picUnitInfo", program.main.picUnitInfo, area_top, events, parent), program(program),
      sprites(sprites) {
    comes_to_front = false; // an open tool or the tray stays before it
    QVBoxLayout* const page = make_page();
    page->addWidget(identity());
    page->addWidget(figures());
    page->addWidget(button_rows(buttons, "unit"));
    frmMain& main = program.main;
    page->addWidget(fixed_text("Subordinates"));
    QListView* const children = bind.list("lstUIchildunits", "Subordinates", main.lstUIchildunits, nullptr,
                                          [&program] { lstUIchildunits_DblClick(program); });
    page->addWidget(children, 1);
    page->addWidget(fixed_text("Force elements"));
    QListView* const elements = bind.list(
        "lstUIfe", "Force elements", main.lstUIfe, [&program] { lstUIfe_Click(program); }, nullptr);
    page->addWidget(elements, 1);
    for (QListView* const list : {children, elements}) list->setMinimumHeight(84);
    page->addWidget(bind.check_box(
        "chkShowAllFE", "Show accumulated for all subordinate units", main.chkShowAllFE,
        [&program] { chkShowAllFE_Click(program); }, ControlBinder::Caption::wrapped));
    page->addWidget(button_rows(buttons, "elements"));
    page->addWidget(button_rows(buttons, "map"));
}

QWidget* UnitInfoView::identity() {
    frmMain& main = program.main;
    auto* const box = new QWidget;
    auto* const grid = new QGridLayout(box);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setSpacing(3);
    auto* const picture = new QLabel;
    picture->setObjectName("imgUIunit");
    picture->setFixedSize(29, 31);
    bind.add_step([this, picture] { picture->setPixmap(sprites.picture(program.main.imgUIunit)); });
    QLabel* const name = bind.label("lblUIunitname", main.lblUIunitname);
    QFont bold = name->font();
    bold.setBold(true);
    name->setFont(bold);
    show_whole(name);
    QFrame* const state = bind.colour_box("picUnitState", "Overall state", main.picUnitState);
    state->setFixedSize(12, 31);
    grid->addWidget(picture, 0, 0);
    grid->addWidget(name, 0, 1);
    grid->addWidget(state, 0, 2);
    QPushButton* const select =
        bind.button("cmdSelectHQ", "HQ", main.cmdSelectHQ, [this] { cmdSelectHQ_Click(program); });
    select->setToolTip("Select the unit's HQ");
    // As wide as its text in the user's font, and no wider: the name beside it needs the room.
    constexpr int margins = 14;
    select->setFixedWidth(select->fontMetrics().horizontalAdvance(select->text()) + margins);
    QLabel* const parent_name = bind.label("lblUIparentname", main.lblUIparentname);
    show_whole(parent_name);
    grid->addWidget(select, 1, 0);
    grid->addWidget(parent_name, 1, 1, 1, 2);
    grid->setColumnStretch(1, 1);
    return box;
}

QWidget* UnitInfoView::figures() {
    frmMain& main = program.main;
    auto* const box = new QWidget;
    auto* const grid = new QGridLayout(box);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setHorizontalSpacing(6);
    grid->setVerticalSpacing(1);
    int row = 0;
    const auto line = [&](const char* caption, const char* name, const Label& first,
                          const char* second_name = nullptr, const Label* second = nullptr) {
        grid->addWidget(fixed_text(caption), row, 0);
        grid->addWidget(bind.label(name, first), row, 1, 1, second == nullptr ? 2 : 1);
        if (second != nullptr) grid->addWidget(bind.label(second_name, *second), row, 2);
        ++row;
    };
    line("East, north", "lblUIeastcoord", main.lblUIeastcoord, "lblUInorthcoord", &main.lblUInorthcoord);
    line("Class", "lblUIUnitStatus", main.lblUIUnitStatus);
    line("Status", "lblUIOpStatus", main.lblUIOpStatus);
    line("Fitness", "lblUIFitness", main.lblUIFitness);
    grid->addWidget(fixed_text("unit"), row, 1);
    grid->addWidget(fixed_text("all"), row++, 2);
    line("Supply needed", "lblUISupplyReq", main.lblUISupplyReq, "lblUIAccSupplyReq",
         &main.lblUIAccSupplyReq);
    line("Supply now", "lblUICurrSupply", main.lblUICurrSupply, "lblUIAccCurrSupply",
         &main.lblUIAccCurrSupply);
    line("MIA", "lblUIMIA", main.lblUIMIA, "lblUIAccMIA", &main.lblUIAccMIA);
    line("KIA", "lblUIKIA", main.lblUIKIA, "lblUIAccKIA", &main.lblUIAccKIA);
    line("Firefan angle", "lblUIFFangle", main.lblUIFFangle);
    grid->setColumnStretch(2, 1);
    return box;
}

QWidget* UnitInfoView::button_rows(std::span<const UnitInfoButton> buttons, const std::string& group) {
    auto* const box = new QWidget;
    auto* const grid = new QGridLayout(box);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setSpacing(2);
    int place = 0;
    for (const UnitInfoButton& row : buttons) {
        if (group != row.group) continue;
        const ControlBinder::Procedure click =
            row.click == nullptr ? ControlBinder::Procedure() : [this, &row] { row.click(program); };
        grid->addWidget(bind.button(row.control, row.caption, program.main.*row.button, click), place / 2,
                        place % 2);
        ++place;
    }
    return box;
}
