#pragma once

#include "nextdata/option.h"
#include "nextdata/result.h"
#include "nextdata/source.h"

#include <QByteArray>
#include <QList>
#include <QString>

namespace NextData {

/// What a form makes of an asset: bytes in their order, and what source text says about them.
struct Data
{
    /// A number about the bytes, which text defines as LABEL_NAME.
    struct Constant
    {
        QString name;
        qint64 value;
    };

    /// A run of bytes. One with a name, which may be any text, gets a label of its own in text, LABEL_name.
    struct Block
    {
        QByteArray bytes;
        QString name{};
        int number = -1; ///< that text defines as LABEL_NAME_NUMBER, of a block with a name; -1 for none
        QString comment{};
        int bytesPerLine = 16; ///< in text
        bool startsFile = false; ///< a new file begins with it
    };

    QList<Constant> constants;
    QList<Block> blocks;
};

/// One of the raw forms in which an asset goes into a game. Its writer is a pure function of the asset and the
/// options; how its bytes become files or text is the same for all forms (output.h).
struct Form
{
    QString id; ///< for recipes and command lines; never changes
    AssetKind kind;
    QString title; ///< for people
    QString suffix; ///< of its binary files, without the dot
    QString noun{}; ///< in labels, behind the asset's name; empty in the form that an asset itself is
    QList<Option> options; ///< its own, then those that all forms have

    Result<qint64> (*size)(const Source &source, const OptionValues &values); ///< of the bytes, without making them
    Result<Data> (*write)(const Source &source, const OptionValues &values);
    /// Why an asset of the right kind cannot have this form at all, or empty; null when all can.
    QString (*refusal)(const Source &source) = nullptr;
};

/// All forms, kind by kind, the commonest of a kind first.
[[nodiscard]] const QList<Form> &forms();

/// The form with an id; null when there is none.
[[nodiscard]] const Form *findForm(const QString &id);

/// The forms that an asset can have.
[[nodiscard]] QList<const Form *> formsFor(const Source &source);

/// Why a form cannot be used for an asset, or empty: the wrong kind, or its refusal.
[[nodiscard]] QString refusalOf(const Form &form, const Source &source);

} // namespace NextData
