#pragma once

#include "support/randomanimations.h"
#include "support/randommaps.h"
#include "support/randompixels.h"
#include "support/randomshell.h"

/// Somebody who does, in a random order that a seed decides, what can be done in the main window.
class RandomUser : public virtual RandomHands,
                   private RandomShell,
                   private RandomPixels,
                   private RandomMaps,
                   private RandomAnimations
{
public:
    RandomUser(MainWindow &window, quint32 seed) : RandomHands(window, seed) { }

    Effect act() override
    {
        while (true) {
            const Action action = any(m_actions);
            m_lastAction = action.name;
            if (action.run())
                return action.effect;
        }
    }
    /// What act() did last.
    [[nodiscard]] QString lastAction() const { return m_lastAction; }

private:
    QString m_lastAction;
};
