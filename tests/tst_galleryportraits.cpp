// The pictures of the classes that the documentation shows.

#include "lmtest.h"

#include "application.h"
#include "portraits.h"

#include <lmwidgets/talvostylemanager.h>

#include <QDir>
#include <QFile>
#include <QImage>
#include <QSet>
#include <QTemporaryDir>
#include <QTextStream>

using LM::Widgets::TalvoStyleManager;

namespace {

const QDir committed(QStringLiteral(LMWIDGETS_WIDGET_PICTURES));

int run(const QStringList &arguments, QString *out, QString *err)
{
    QTextStream outStream(out);
    QTextStream errStream(err);
    return gallery::run(QStringList(QStringLiteral("lmgallery")) + arguments, outStream, errStream);
}

int colorCount(const QImage &image)
{
    QSet<QRgb> colors;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            colors.insert(image.pixel(x, y));
        }
    }
    return colors.size();
}

} // namespace

class tst_GalleryPortraits : public lmtest::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void everyClassIsTaken();
    void committedPicturesAreThose();
    void folderThatCannotBeMade();
};

void tst_GalleryPortraits::everyClassIsTaken()
{
    QTemporaryDir folder;
    QVERIFY(folder.isValid());
    TalvoStyleManager::instance()->shiftStyle(TalvoStyleManager::White);
    QString out;
    QString err;
    const QString target = folder.filePath(QStringLiteral("new/pictures"));
    QCOMPARE(run({QStringLiteral("--widget-pictures"), target}, &out, &err), int(gallery::Success));
    QVERIFY2(err.isEmpty(), qPrintable(err));
    QCOMPARE(TalvoStyleManager::instance()->currentStyle(), TalvoStyleManager::White);

    const QVector<gallery::Portrait> all = gallery::portraits();
    QCOMPARE(out.split(QLatin1Char('\n'), Qt::SkipEmptyParts).size(), all.size());
    for (const gallery::Portrait &portrait : all) {
        const QImage picture(QDir(target).filePath(portrait.name + QStringLiteral(".png")));
        QVERIFY2(!picture.isNull(), qPrintable(portrait.name));
        QVERIFY2(colorCount(picture) > 4, qPrintable(portrait.name));
    }
}

void tst_GalleryPortraits::committedPicturesAreThose()
{
    QStringList names;
    const QVector<gallery::Portrait> all = gallery::portraits();
    for (const gallery::Portrait &portrait : all) {
        names.append(portrait.name + QStringLiteral(".png"));
    }
    names.sort();
    // scripts/screenshots takes them.
    QCOMPARE(committed.entryList(QDir::Files, QDir::Name), names);
}

void tst_GalleryPortraits::folderThatCannotBeMade()
{
    QTemporaryDir folder;
    QFile file(folder.filePath(QStringLiteral("file")));
    QVERIFY(file.open(QIODevice::WriteOnly));
    QString out;
    QString err;
    QCOMPARE(run({QStringLiteral("--widget-pictures"), file.fileName() + QStringLiteral("/in")},
                 &out, &err),
             int(gallery::PictureFailed));
    QVERIFY(err.contains(QStringLiteral("cannot create")));
    QVERIFY(out.isEmpty());
}

LMTEST_MAIN(tst_GalleryPortraits)

#include "tst_galleryportraits.moc"
