#include "lmtest.h"

#include <lmwidgets/talvostylemanager.h>

class tst_TalvoStyleManager : public lmtest::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void themeAtStart();
};

void tst_TalvoStyleManager::themeAtStart()
{
    auto *manager = LM::Widgets::TalvoStyleManager::instance().data();
    QCOMPARE(int(manager->currentStyle()), 0);
    QVERIFY(manager->currentThemePath().endsWith(QLatin1String("/theme/Black/")));
}

LMTEST_MAIN(tst_TalvoStyleManager)

#include "tst_talvostylemanager.moc"
