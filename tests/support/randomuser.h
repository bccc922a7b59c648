#pragma once

#include "support/randomanimations.h"
#include "support/randomcommands.h"
#include "support/randommaps.h"
#include "support/randompixels.h"
#include "support/randomshell.h"

/// Somebody who does, in a random order that a seed decides, what can be done in the main window.
class RandomUser : public virtual RandomHands,
                   private RandomCommands,
                   private RandomShell,
                   private RandomPixels,
                   private RandomMaps,
                   private RandomAnimations
{
public:
    /// Before each action it is told what kind it is.
    RandomUser(
        MainWindow &window, quint32 seed, const std::function<void(Effect)> &before = [](Effect) {})
        : RandomHands(window, seed)
        , m_before(before)
    { }

    Effect act() override
    {
        while (true) {
            const Action action = any(m_actions);
            if (action.effect == Lasting && chance())
                continue; // so that undo has something to do
            m_lastAction = action.name;
            m_before(action.effect);
            if (action.run())
                return action.effect;
        }
    }
    /// What act() did last.
    [[nodiscard]] QString lastAction() const { return m_lastAction; }

private:
    std::function<void(Effect)> m_before;
};
