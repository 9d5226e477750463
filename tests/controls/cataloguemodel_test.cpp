// A catalogue in a list: its rows, and what typing finds among them.
#include "controls/cataloguemodel.h"

#include "controls/listbox.h"
#include "core/codepage.h"
#include "core/scales.h"

#include <QTemporaryDir>
#include <QTest>

namespace {

constexpr int builtInRows = 66;

} // namespace

class CatalogueModelTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void ARowShowsTheNameOfItsEntry();
    void TypingFindsTheNextRowThatBeginsSo_data();
    void TypingFindsTheNextRowThatBeginsSo();
    void TypingInAListSelectsTheRow();
    void EveryOtherSearchIsTheToolkitsOwn();

private:
    QList<int> Rows(int start, const QString& text, int hits, Qt::MatchFlags flags) const {
        QList<int> rows;
        for (const QModelIndex& found :
             m_model.match(m_model.index(start), Qt::DisplayRole, text, hits, flags))
            rows += found.row();
        return rows;
    }

    TextTable m_scales = BuiltInScales();
    const CatalogueModel m_model{m_scales};
};

void CatalogueModelTest::initTestCase() {
    const QTemporaryDir folder;
    QFile file(folder.filePath(QStringLiteral("scales.dat")));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(ToAnsi(u"Ёлка\r\n1\r\nquartal\r\n1\r\n\r\n1\r\nQuintal\r\n1"));
    file.close();
    m_scales.AppendDataFile(file.fileName());
    QCOMPARE(m_model.rowCount(), builtInRows + 4);
}

void CatalogueModelTest::ARowShowsTheNameOfItsEntry() {
    QCOMPARE(m_model.index(0).data().toString(), m_scales.Field(ScaleDef::Name, 1));
    QCOMPARE(m_model.index(builtInRows).data().toString(), QStringLiteral("Ёлка"));
    QCOMPARE(m_model.index(0).data(Qt::DecorationRole), QVariant());
}

void CatalogueModelTest::TypingFindsTheNextRowThatBeginsSo_data() {
    QTest::addColumn<int>("start");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QList<int>>("rows");
    QTest::newRow("in the file") << 0 << QStringLiteral("quart") << QList{builtInRows + 1};
    QTest::newRow("in whatever case") << 0 << QStringLiteral("QUINT") << QList{builtInRows + 3};
    QTest::newRow("Russian in whatever case") << 0 << QStringLiteral("ёЛ") << QList{builtInRows};
    QTest::newRow("the row it starts from")
        << builtInRows + 3 << QStringLiteral("q") << QList{builtInRows + 3};
    QTest::newRow("the next one") << builtInRows + 2 << QStringLiteral("q")
                                  << QList{builtInRows + 3};
    QTest::newRow("round the end")
        << builtInRows + 3 << QStringLiteral("quart") << QList{builtInRows + 1};
    QTest::newRow("round the end to a built-in one")
        << builtInRows + 3 << m_scales.Field(ScaleDef::Name, 1).toLower() << QList{0};
    QTest::newRow("none has it at its beginning") << 0 << QStringLiteral("uintal") << QList<int>{};
    QTest::newRow("a longer text than the name") << 0 << QStringLiteral("quintals") << QList<int>{};
}

void CatalogueModelTest::TypingFindsTheNextRowThatBeginsSo() {
    QFETCH(const int, start);
    QFETCH(const QString, text);
    QFETCH(const QList<int>, rows);
    const Qt::MatchFlags typed(Qt::MatchStartsWith | Qt::MatchWrap);
    QCOMPARE(Rows(start, text, 1, typed), rows);
    // As the toolkit would have found it.
    QModelIndexList found =
        m_model.QAbstractListModel::match(m_model.index(start), Qt::DisplayRole, text, 1, typed);
    QCOMPARE(found.isEmpty() ? QList<int>{} : QList{found.first().row()}, rows);
}

void CatalogueModelTest::TypingInAListSelectsTheRow() {
    ListBox list(QStringLiteral("list"));
    list.setModel(new CatalogueModel(m_scales, &list));
    list.resize(200, 100);
    list.show();
    QVERIFY(QTest::qWaitForWindowActive(&list));
    list.SelectRow(0);
    QApplication::setKeyboardInputInterval(3'600'000); // However slowly the test types.
    QTest::keyClicks(&list, QStringLiteral("qui"));
    QCOMPARE(list.Row(), builtInRows + 3);
    QVERIFY(list.viewport()->rect().contains(list.visualRect(list.currentIndex()).center()));
}

void CatalogueModelTest::EveryOtherSearchIsTheToolkitsOwn() {
    QCOMPARE(Rows(0, QStringLiteral("q"), -1, Qt::MatchStartsWith),
             (QList{builtInRows + 1, builtInRows + 3}));
    QCOMPARE(Rows(0, QStringLiteral("Quintal"), 1, Qt::MatchExactly), QList{builtInRows + 3});
    QCOMPARE(Rows(builtInRows + 2, QStringLiteral("quart"), 1, Qt::MatchStartsWith), QList<int>{});
    QVERIFY(m_model
                .match(QModelIndex(), Qt::DisplayRole, QStringLiteral("q"), 1,
                       Qt::MatchStartsWith | Qt::MatchWrap)
                .isEmpty());
}

QTEST_MAIN(CatalogueModelTest)
#include "cataloguemodel_test.moc"
