#pragma once

/// What the Edit menu asks of the editor in front; implemented by every editor with a selection.
class EditTarget
{
public:
    virtual ~EditTarget();

    virtual void cut() = 0;
    virtual void copy() = 0;
    virtual void paste() = 0;
    virtual void selectAll() = 0;
    virtual void selectNone() = 0;

protected:
    EditTarget() = default;
    EditTarget(const EditTarget &) = default;
    EditTarget &operator=(const EditTarget &) = default;
};
