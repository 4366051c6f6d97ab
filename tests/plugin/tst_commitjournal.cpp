// The commit journal and the stage around it: an export stopped after any number of its moves is
// brought back to one whole export, forward or back, and host-written files are staged too.
#include "common/textcompare.h"
#include "plugin/commitjournal.h"
#include "plugin/outputstage.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QMap>
#include <QTemporaryDir>
#include <QtTest>

using namespace vantora::plugin;
using vantora::test::readFileBytes;
using vantora::test::writeFileBytes;

namespace {

// Every file below `folder` with its bytes, by relative path; links by their target.
QMap<QString, QByteArray> contents(const QString &folder)
{
    QMap<QString, QByteArray> files;
    QDirIterator it(folder, QDir::Files | QDir::System | QDir::Hidden | QDir::NoDotAndDotDot,
        QDirIterator::Subdirectories);
    while (it.hasNext()) {
        const QString path = it.next();
        const QString name = QDir(folder).relativeFilePath(path);
        files.insert(name,
            it.fileInfo().isSymLink() ? "link to " + it.fileInfo().symLinkTarget().toUtf8()
                                      : readFileBytes(path));
    }
    return files;
}

// The folder's earlier export: a page, a parameter file and two levels of tiles.
void writeOldExport(const QString &folder)
{
    QVERIFY(QDir().mkpath(folder + "p_tiles/0") && QDir().mkpath(folder + "p_tiles/1"));
    QVERIFY(writeFileBytes(folder + "p.html", "old page"));
    QVERIFY(writeFileBytes(folder + "p.json", "old params"));
    QVERIFY(writeFileBytes(folder + "p_tiles/0/0_0.jpg", "old tile 0"));
    QVERIFY(writeFileBytes(folder + "p_tiles/1/0_0.jpg", "old tile 1"));
}

// Stages the new export: a page, a parameter file, a logo the old one lacked, one level of tiles.
void stageNewExport(const QString &folder)
{
    stage::begin({folder + "p.html", folder + "p.json"});
    QVERIFY(QDir().mkpath(folder + "p_tiles.vantora-new/0"));
    QVERIFY(writeFileBytes(folder + "p_tiles.vantora-new/0/0_0.jpg", "new tile 0"));
    QVERIFY(stage::writeFile(folder + "logo.png", "new logo"));
    QVERIFY(stage::writeFile(folder + "p.json", "new params"));
    QVERIFY(stage::writeFile(folder + "p.html", "new page"));
    stage::adoptStagedFolder(folder + "p_tiles");
}

} // namespace

class TestCommitJournal : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { stage::discard(); }

    // Only a whole journal is read: one cut anywhere is not taken for a list of moves.
    void journalIsReadOnlyWhole()
    {
        const QString folder = "/out/";
        const QVector<journal::Move> moves = {{"/out/p_tiles", true, true},
            {"/out/a b\n%.png", false, false}, {"/elsewhere/x.js", false, true}};
        const QByteArray bytes = journal::journalBytes(folder, moves, journal::Direction::Back);
        QVector<journal::Move> read;
        journal::Direction direction = journal::Direction::Forward;
        QVERIFY(journal::parseJournal(folder, bytes, &read, &direction));
        QCOMPARE(direction, journal::Direction::Back);
        QCOMPARE(read.size(), moves.size());
        for (int i = 0; i < moves.size(); ++i) {
            QCOMPARE(read[i].target, moves[i].target);
            QCOMPARE(read[i].folder, moves[i].folder);
            QCOMPARE(read[i].existed, moves[i].existed);
        }
        for (int cut = 0; cut < bytes.size(); ++cut)
            QVERIFY2(!journal::parseJournal(folder, bytes.left(cut), &read, &direction),
                qPrintable(QString::number(cut)));
    }

    void recoversAfterAnyMove_data()
    {
        QTest::addColumn<int>("done");
        QTest::addColumn<bool>("back");
        // The commit makes four moves: the tiles, the logo, the parameter file, the page.
        for (int done = 0; done <= 4; ++done) {
            QTest::addRow("forward after %d", done) << done << false;
            QTest::addRow("back after %d", done) << done << true;
        }
    }

    // The moves of a commit stopped after `done` of them: recovery ends with the new export when
    // the journal goes forward, with the old one when it was marked to go back.
    void recoversAfterAnyMove()
    {
        QFETCH(int, done);
        QFETCH(bool, back);
        QTemporaryDir dir;
        const QString folder = dir.path() + "/";
        writeOldExport(folder);
        const QMap<QString, QByteArray> before = contents(folder);
        stageNewExport(folder);
        QVERIFY(stage::commit());
        const QMap<QString, QByteArray> after = contents(folder);
        QCOMPARE(after.value("p.html"), QByteArray("new page"));
        QVERIFY(!after.contains("p_tiles/1/0_0.jpg"));
        QCOMPARE(QDir(folder).entryList(QDir::AllEntries | QDir::NoDotAndDotDot | QDir::Hidden),
            QStringList({"logo.png", "p.html", "p.json", "p_tiles"}));

        QTemporaryDir again;
        const QString trial = again.path() + "/";
        writeOldExport(trial);
        stageNewExport(trial);
        const QVector<journal::Move> moves
            = {{trial + "p_tiles", true, true}, {trial + "logo.png", false, false},
                {trial + "p.json", false, true}, {trial + "p.html", false, true}};
        QVERIFY(journal::write(
            trial, moves, back ? journal::Direction::Back : journal::Direction::Forward));
        QVERIFY(journal::rollForward(moves.mid(0, done)));
        QVERIFY(stage::recover(trial));
        QCOMPARE(contents(trial), back ? before : after);
        QVERIFY(!QFile::exists(journal::journalPath(trial)));
    }

    // Undoing can itself be cut short: the journal, marked to go back, finishes it.
    void recoversAnUndoCutShort()
    {
        QTemporaryDir dir;
        const QString folder = dir.path() + "/";
        writeOldExport(folder);
        const QMap<QString, QByteArray> before = contents(folder);
        stageNewExport(folder);
        const QVector<journal::Move> moves = {{folder + "p_tiles", true, true},
            {folder + "logo.png", false, false}, {folder + "p.html", false, true}};
        QVERIFY(journal::write(folder, moves, journal::Direction::Back));
        QVERIFY(journal::rollForward(moves));
        QVERIFY(journal::rollBack(moves.mid(2)));
        QVERIFY(stage::recover(folder));
        QCOMPARE(contents(folder), before);
    }

    // Without a journal the working files of an export that never reached its moves go; the
    // user's files stay, whatever their names.
    void recoveryRemovesOnlyWorkingFiles()
    {
        QTemporaryDir dir;
        const QString folder = dir.path() + "/";
        writeOldExport(folder);
        QVERIFY(writeFileBytes(folder + "notes.vantora.txt", "the user's"));
        const QMap<QString, QByteArray> before = contents(folder);
        stageNewExport(folder);
        QVERIFY(QDir().mkpath(folder + "p_tiles.vantora-staging/pyramid_files"));
        QVERIFY(writeFileBytes(folder + "p.html.vantora-test", ""));
        QVERIFY(stage::recover(folder));
        QCOMPARE(contents(folder), before);
    }

    // The host writes its files under the staged name; nothing reaches the final name before the
    // commit, a link planted at the staged name is not written through, a reserved name is
    // never handed out, and a discarded stage leaves nothing.
    void hostFilesAreStaged()
    {
        QTemporaryDir dir;
        const QString folder = dir.path() + "/";
        QVERIFY(writeFileBytes(folder + "victim", "outside"));
        QVERIFY(QFile::link(folder + "victim", folder + "pap_a.png.vantora-new"));
        QStringList asked;
        const auto host = [&](const QString &target) {
            asked.append(QDir(folder).relativeFilePath(target));
            QVERIFY(writeFileBytes(target, "bitmap"));
        };
        stage::begin({folder + "p.html"});
        stage::writeByHost(folder + "pap_a.png", host);
        stage::writeByHost(folder + "p.html", host);
        QCOMPARE(asked, QStringList {"pap_a.png.vantora-new"});
        QCOMPARE(readFileBytes(folder + "victim"), QByteArray("outside"));
        QVERIFY(!QFile::exists(folder + "pap_a.png"));
        stage::discard();
        QCOMPARE(QDir(folder).entryList(QDir::Files | QDir::System), QStringList {"victim"});

        stage::begin();
        stage::writeByHost(folder + "pap_a.png", host);
        QVERIFY(stage::commit());
        QCOMPARE(readFileBytes(folder + "pap_a.png"), QByteArray("bitmap"));
        QCOMPARE(QDir(folder).entryList(QDir::Files | QDir::System | QDir::Hidden),
            QStringList({"pap_a.png", "victim"}));
    }
};

QTEST_GUILESS_MAIN(TestCommitJournal)
#include "tst_commitjournal.moc"
