#include "preferences/mapeditorpage.h"

#include "preferences/colourbutton.h"
#include "ui/svgiconengine.h"

#include <QCheckBox>
#include <QColorDialog>
#include <QFormLayout>
#include <QSpinBox>

namespace {

const QString CheckerBoardKey = QStringLiteral("checkerBoard");
const QString GridColour1Key = QStringLiteral("gridColour1");
const QString GridColour2Key = QStringLiteral("gridColour2");
const QString OverlayGridKey = QStringLiteral("overlayGrid");
const QString GridSizeKey = QStringLiteral("gridSize");
const QString DefaultZoomKey = QStringLiteral("defaultZoom");

QSpinBox *makeSpinBox(int from, int to, int step, int value)
{
    auto *box = new QSpinBox;
    box->setRange(from, to);
    box->setSingleStep(step);
    box->setValue(value);
    return box;
}

void readColour(const QJsonValue &name, ColourButton *button)
{
    if (name.isString())
        button->setColour(QColor::fromString(name.toString()));
}

} // namespace

MapEditorPage::MapEditorPage(QWidget *parent)
    : BasePreferencesPage(parent)
    , m_checkerBoard(new QCheckBox(tr("Render checker board beneath maps")))
    , m_gridColour1(new ColourButton(QColor(64, 64, 64)))
    , m_gridColour2(new ColourButton(QColor(80, 80, 80)))
    , m_overlayGrid(new QCheckBox(tr("Enable grid line overlay")))
    , m_gridSize(makeSpinBox(8, 256, 8, 8))
    , m_defaultZoom(makeSpinBox(1, 8, 1, 4))
{
    setWindowTitle(tr("Map Editor"));
    setWindowIcon(themedIcon(QStringLiteral(":/tb-new-file")));

    m_gridColour1->setAccessibleName(tr("Grid colour"));
    m_gridColour2->setAccessibleName(tr("Alternate colour"));
    m_checkerBoard->setChecked(true);
    m_overlayGrid->setChecked(true);
    for (ColourButton *button : {m_gridColour1, m_gridColour2})
        connect(button, &QPushButton::clicked, this, [this, button] { chooseColour(button); });

    auto *content = new QWidget;
    auto *layout = new QFormLayout(content);
    layout->addRow(m_checkerBoard);
    layout->addRow(tr("Grid colour"), m_gridColour1);
    layout->addRow(tr("Alternate colour"), m_gridColour2);
    layout->addRow(m_overlayGrid);
    layout->addRow(tr("Grid size (in pixels)"), m_gridSize);
    layout->addRow(tr("Default magnification"), m_defaultZoom);
    setWidget(content);
}

bool MapEditorPage::checkerBoard() const
{
    return m_checkerBoard->isChecked();
}

QColor MapEditorPage::gridColour1() const
{
    return m_gridColour1->colour();
}

QColor MapEditorPage::gridColour2() const
{
    return m_gridColour2->colour();
}

bool MapEditorPage::overlayGrid() const
{
    return m_overlayGrid->isChecked();
}

int MapEditorPage::gridSize() const
{
    return m_gridSize->value();
}

int MapEditorPage::defaultZoom() const
{
    return m_defaultZoom->value();
}

QJsonObject MapEditorPage::toJson() const
{
    return {
        {CheckerBoardKey, checkerBoard()},
        {GridColour1Key, gridColour1().name()},
        {GridColour2Key, gridColour2().name()},
        {OverlayGridKey, overlayGrid()},
        {GridSizeKey, gridSize()},
        {DefaultZoomKey, defaultZoom()},
    };
}

void MapEditorPage::fromJson(const QJsonObject &settings)
{
    m_checkerBoard->setChecked(settings.value(CheckerBoardKey).toBool(checkerBoard()));
    readColour(settings.value(GridColour1Key), m_gridColour1);
    readColour(settings.value(GridColour2Key), m_gridColour2);
    m_overlayGrid->setChecked(settings.value(OverlayGridKey).toBool(overlayGrid()));
    m_gridSize->setValue(settings.value(GridSizeKey).toInt(gridSize()));
    m_defaultZoom->setValue(settings.value(DefaultZoomKey).toInt(defaultZoom()));
}

void MapEditorPage::chooseColour(ColourButton *button)
{
    if (!m_colourDialog) {
        m_colourDialog = new QColorDialog(this);
        connect(m_colourDialog, &QColorDialog::colorSelected, this, [this](const QColor &colour) {
            if (m_chosenFor)
                m_chosenFor->setColour(colour);
        });
    }
    m_chosenFor = button;
    m_colourDialog->setCurrentColor(button->colour());
    m_colourDialog->open();
}
