#ifndef OWNSETTINGS_H
#define OWNSETTINGS_H

#include <QScopedPointer>

namespace lmtest {

/** Keeps what Qt's dialogs write down of a user's ways out of the user's settings while it lives. */
class OwnSettings
{
public:
    OwnSettings();
    ~OwnSettings();

private:
    Q_DISABLE_COPY(OwnSettings)

    struct Place;
    QScopedPointer<Place> m_place;
};

} // namespace lmtest

#endif
