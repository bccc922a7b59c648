#pragma once

#include "editors/animation/animationtoolbar.h"
#include "model/tileanimation.h"

class QComboBox;

/// The properties of a tile animation: those of every animation, and how the game moves it.
class BlockEditorToolBar : public AnimationEditor::AnimationToolBar
{
    Q_OBJECT

public:
    explicit BlockEditorToolBar(QWidget *parent = nullptr);

    void setBlockType(MapObjectType type);

signals:
    void blockTypeChanged(MapObjectType type);

private:
    QComboBox *m_type;
};
