#include "app/recoveryoffers.h"

#include "app/projectcontroller.h"
#include "app/recoverykeeper.h"

#include <algorithm>

RecoveryOffers::RecoveryOffers(ProjectController *controller, RecoveryKeeper *keeper, const QString &folder,
                               QObject *parent)
    : QObject(parent)
    , m_controller(controller)
    , m_keeper(keeper)
    , m_folder(folder)
{
    connect(controller, &ProjectController::projectOpened, this, &RecoveryOffers::release);
    connect(controller, &ProjectController::projectClosed, this, &RecoveryOffers::refresh);
}

void RecoveryOffers::refresh()
{
    m_copies.clear();
    for (RecoveryFolder &folder : RecoveryFolder::takeAbandoned(m_folder)) {
        RecoveryCopy copy(std::move(folder));
        switch (copy.state()) {
        case RecoveryCopy::Missing:
            copy.folder().remove();
            break;
        case RecoveryCopy::Whole:
            m_copies.push_back(std::move(copy));
            break;
        case RecoveryCopy::Damaged:
            putAside(std::move(copy));
            break;
        }
    }
    std::sort(m_copies.begin(), m_copies.end(),
              [](const RecoveryCopy &a, const RecoveryCopy &b) { return a.manifest().time > b.manifest().time; });
    emit changed();
}

void RecoveryOffers::release()
{
    m_copies.clear();
    emit changed();
}

void RecoveryOffers::recover(int index)
{
    RecoveryCopy copy = std::move(m_copies[size_t(index)]);
    m_copies.erase(m_copies.begin() + index);
    const auto members = [&copy](const QString &member) { return copy.read(member); };
    const RecoveryManifest &manifest = copy.manifest();
    if (m_controller->openRecovered(members, manifest.projectFile, manifest.isFileChanged())) {
        m_keeper->goOnFrom(std::move(copy));
    } else {
        putAside(std::move(copy));
        emit changed();
    }
}

void RecoveryOffers::discard(int index)
{
    m_copies[size_t(index)].folder().remove();
    m_copies.erase(m_copies.begin() + index);
    emit changed();
}

void RecoveryOffers::putAside(RecoveryCopy copy)
{
    m_damaged.append({copy.manifest().projectName, copy.folder().setAside()});
}
