#include "nextdata/form.h"

#include "nextdata/families.h"
#include "nextdata/output.h"
#include "nextdata/texts.h"

#include <algorithm>

namespace NextData {
namespace {

QList<Form> allForms()
{
    QList<Form> all = paletteForms() + tileForms() + mapForms() + objectForms() + blockAnimationForms() + spriteForms()
        + spriteAnimationForms() + imageForms();
    for (Form &form : all)
        form.options += commonOptions();
    return all;
}

} // namespace

const QList<Form> &forms()
{
    static const QList<Form> all = allForms();
    return all;
}

const Form *findForm(const QString &id)
{
    const QList<Form> &all = forms();
    const auto form = std::find_if(all.cbegin(), all.cend(), [&id](const Form &each) { return each.id == id; });
    return form != all.cend() ? &*form : nullptr;
}

QList<const Form *> formsFor(const Source &source)
{
    QList<const Form *> fitting;
    for (const Form &form : forms()) {
        if (refusalOf(form, source).isEmpty())
            fitting.append(&form);
    }
    return fitting;
}

QString refusalOf(const Form &form, const Source &source)
{
    if (form.kind != source.kind()) {
        return Texts::tr("“%1” is %2, and the form %3 is for %4")
            .arg(source.name(), titleOf(source.kind()), form.id, titleOf(form.kind));
    }
    return form.refusal ? form.refusal(source) : QString();
}

} // namespace NextData
