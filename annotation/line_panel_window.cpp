#include "annotation/line_panel_window.h"

#include "annotation/line_panel.h"
#include "widgets/painter_surface.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QPainter>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollBar>
#include <QVBoxLayout>

namespace {

/// `picLineEx`: a short polyline as the next line will look.
class SampleView : public QWidget {
  public:
    explicit SampleView(const LinePanel& panel) : panel(panel) {
        setObjectName("picLineEx");
        setAccessibleName("Sample of the line");
        setMinimumHeight(60);
        setAttribute(Qt::WA_OpaquePaintEvent);
    }

  protected:
    void paintEvent(QPaintEvent* /*event*/) override {
        QPainter painter(this);
        painter.fillRect(rect(), Qt::white);
        PainterSurface surface(painter);
        const double right = width() - 16;
        const double bottom = height() - 12;
        const std::array<Point, 4> corners{
            Point{16, bottom}, {right / 3 + 10, 12}, {2 * right / 3, bottom}, {right, 12}};
        for (std::size_t i = 0; i < panel.lineEx.size(); ++i) {
            const SampleLine& sample = panel.lineEx[i];
            surface.pen.ForeColor = sample.colour;
            surface.pen.DrawStyle = sample.style - 1;
            surface.pen.DrawWidth = sample.width;
            surface.line(corners[i], corners[i + 1]);
        }
    }

  private:
    const LinePanel& panel;
};

} // namespace

LinePanelView::LinePanelView(Program& program, double area_top, EventRunner& events, QWidget* parent)
    : SidePanel("picDrawLines", program.main.picDrawLines, area_top, events, parent), program(program) {
    QVBoxLayout* const page = make_page();
    page->addWidget(kind());
    page->addWidget(modes());
    page->addWidget(width_and_colour());
    page->addWidget(styles());
    page->addStretch();
}

QWidget* LinePanelView::kind() {
    frmMain& main = program.main;
    auto* const box = new QWidget;
    auto* const grid = new QGridLayout(box);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setSpacing(2);
    grid->addWidget(bind.option("optSingleLine", "Single line", main.optSingleLine,
                                [this] { optSingleLine_Click(program); }),
                    0, 0);
    grid->addWidget(
        bind.option("optPolyline", "Polyline", main.optPolyline, [this] { optPolyline_Click(program); }), 0,
        1);
    grid->addWidget(bind.check_box("chkArrow", "Arrow", main.chkArrow, [this] { chkArrow_Click(program); }),
                    1, 0);
    grid->addWidget(
        bind.check_box("chkBoundry", "Unit boundry", main.chkBoundry, [this] { chkBoundry_Click(program); }),
        1, 1);
    grid->addWidget(bind.combo("cboBoundrySize", "Size of the boundary", main.cboBoundrySize,
                               [this] { cboBoundrySize_Change(program); }),
                    2, 0, 1, 2);
    return box;
}

QGroupBox* LinePanelView::styles() {
    static constexpr std::array<const char*, 6> captions{"",    "Solid",    "Dash",
                                                         "Dot", "Dash-Dot", "Dash-Dot-Dot"};
    auto* const box = new QGroupBox;
    auto* const page = new QVBoxLayout(box);
    page->setContentsMargins(4, 2, 4, 4);
    page->setSpacing(1);
    auto* const caption = new QLabel("Select line style (NB! Only works for line width = 1)");
    caption->setWordWrap(true);
    page->addWidget(caption);
    for (std::size_t i = 1; i < captions.size(); ++i)
        page->addWidget(bind.option("optLineStyle" + std::to_string(i), captions[i],
                                    program.main.optLineStyle[i],
                                    [this, i] { optLineStyle_Click(program, static_cast<int>(i)); }));
    return box;
}

QWidget* LinePanelView::width_and_colour() {
    frmMain& main = program.main;
    auto* const box = new QWidget;
    auto* const grid = new QGridLayout(box);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setSpacing(3);
    grid->addWidget(new QLabel("Width"), 0, 0);
    grid->addWidget(bind.scroll_bar("scrlLineWidth", "Width of the line", main.scrlLineWidth,
                                    [this] { scrlLineWidth_Change(program); }),
                    0, 1);
    QLabel* const width = bind.label("lblLineWidth", main.lblLineWidth);
    width->setMinimumWidth(20);
    grid->addWidget(width, 0, 2);
    grid->addWidget(
        bind.button("cmdLineColor", "Color", main.cmdLineColor, [this] { cmdLineColor_Click(program); }), 1,
        0);
    grid->addWidget(bind.colour_box("picLineColor", "Color of the line", main.picLineColor), 1, 1, 1, 2);
    auto* const sample = new SampleView(main);
    bind.add_step([sample] { sample->update(); });
    grid->addWidget(sample, 2, 0, 1, 3);
    return box;
}

QWidget* LinePanelView::modes() {
    frmMain& main = program.main;
    auto* const box = new QWidget;
    auto* const grid = new QGridLayout(box);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setSpacing(2);
    grid->addWidget(bind.button("cmdStartDrawLines", "Draw", main.cmdStartDrawLines,
                                [this] { cmdStartDrawLines_Click(program); }),
                    0, 0);
    grid->addWidget(bind.button("cmdDeleteLine", "Delete line", main.cmdDeleteLine,
                                [this] { cmdDeleteLine_Click(program); }),
                    0, 1);
    grid->addWidget(bind.button("cmdMovePoint", "Move a point", main.cmdMovePoint,
                                [this] { cmdMovePoint_Click(program); }),
                    1, 0);
    grid->addWidget(bind.button("cmdInsertPointLine", "Insert point", main.cmdInsertPointLine,
                                [this] { cmdInsertPointLine_Click(program); }),
                    1, 1);
    grid->addWidget(bind.button(
                        "cmdDeletePoint", "Delete single point (polylines only)", main.cmdDeletePoint,
                        [this] { cmdDeletePoint_Click(program); }, ControlBinder::Caption::wrapped),
                    2, 0, 1, 2);
    grid->addWidget(bind.button("cmdDeleteAllLines", "Delete all lines", main.cmdDeleteAllLines,
                                [this] { cmdDeleteAllLines_Click(program); }),
                    3, 0);
    grid->addWidget(bind.button("cmdExitDrawLine", "Exit", main.cmdExitDrawLine,
                                [this] { cmdExitDrawLine_Click(program); }),
                    3, 1);
    return box;
}
