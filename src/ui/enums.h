#pragma once

#include <QObject>

/// Enumerations of the user interface that editors, tools and the widget kit share.
namespace Quenmora::Ui {
Q_NAMESPACE

/// Every tool and action of the tool palettes, the paint canvas and the map grid. The tools that
/// stay chosen until another is chosen come first, up to _end_toggles.
enum ToolButton {
    Draw = 0,
    Line = 1,
    Rectangle = 2,
    RectangleFill = 3,
    Circle = 4,
    CircleFill = 5,
    Select = 6,
    Paste = 7,
    Fill = 8,
    Pick = 9,
    _end_toggles = 10,
    Resize = 11,
    Grid = 12,
    ZoomIn = 13,
    ZoomOut = 14,
    RotateCW = 15,
    RotateCCW = 16,
    MoveUp = 17,
    MoveDown = 18,
    MoveLeft = 19,
    MoveRight = 20,
    Cut = 21,
    Copy = 22,
    Crop = 23,
    Erase = 24,
    Flip = 25,
    Mirror = 26,
    PaintPalette = 27,
    Open = 28,
    Save = 29,
    AnimPlay = 30,
    AnimStop = 31,
    ExpandToFit = 32,
    PlaceAnim = 33,
    PlaceSprite = 34,
    ShrinkToFit = 35,
    ToggleViewport = 36,
    PaintTerrain = 37,
    RandomTiles = 38
};
Q_ENUM_NS(ToolButton)

/// How the pixel values of a canvas relate to its palette: fixed Spectrum colours, their extended
/// set, one of sixteen groups of sixteen colours, or all 256 colours.
enum ImageType { Ula = 0, UlaPlus = 1, Offset16 = 2, Full256 = 3, Undefined = 4 };
Q_ENUM_NS(ImageType)

/// A direction on the screen, such as that in which the arrow of a popover points.
enum Direction { Left = 0, Right = 1, Up = 2, Down = 3 };
Q_ENUM_NS(Direction)

/// Where a popover stands, seen from what it belongs to.
enum DialogPosition { LeftOf = 0, RightOf = 1, Above = 2, Below = 3 };
Q_ENUM_NS(DialogPosition)

} // namespace Quenmora::Ui
