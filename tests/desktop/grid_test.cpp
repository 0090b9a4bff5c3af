// SPDX-License-Identifier: GPL-3.0-or-later
#include <QClipboard>
#include <QHeaderView>
#include <QLineEdit>
#include <QtTest>

#include "desktop/grid_adapter.h"
#include "desktop/mirror.h"
#include "desktop/running_desktop.h"

namespace kelvra::desktop {

class GridTest : public QObject {
    Q_OBJECT

    controls::Changes changes_;
    controls::Window window_{changes_, "W", "", {}};
    controls::Grid grid_{window_, "G", 4, 3};
    std::unique_ptr<Mirror> mirror_;
    std::unique_ptr<GridWidget> table_;
    QStringList events_;

    void Set(int row, int column, const char* text) {
        controls::SetGridCell(grid_, row, column, text, controls::Align::Left, false, false);
    }

    // The editor that is open.
    QLineEdit* Editor() { return table_->findChild<QLineEdit*>(); }

private slots:
    void initTestCase() {
        grid_.mouseDown.Connect(
            [this](int row, int column) { events_ << QString("down %1 %2").arg(row).arg(column); });
        grid_.typed.Connect([this](int row, int column, const std::string& text) {
            events_ << QString("type %1 %2 ").arg(row).arg(column) + text.c_str();
        });
        grid_.click.Connect([this](int row, int column) {
            events_ << QString("click %1 %2").arg(row).arg(column);
        });
    }

    void init() {
        mirror_ = std::make_unique<Mirror>(changes_);
        table_ = std::make_unique<GridWidget>(grid_);
        for (int row = 0; row < 4; ++row)
            for (int column = 0; column < 3; ++column)
                Set(row, column, std::string{char('a' + column), char('0' + row)}.c_str());
        mirror_->Add(grid_, std::make_unique<GridAdapter>(grid_, *table_));
        table_->resize(400, 300);
        table_->show();
        events_.clear();
    }

    void cleanup() {
        mirror_.reset();
        table_.reset();
    }

    void ACellShowsItsTextLookAndTooltip() {
        controls::SetGridCell(grid_, 2, 1, "new", controls::Align::Centre, true, true,
                              controls::Green);
        grid_.SetCellTooltip(2, 1, "why");
        mirror_->Flush();
        const QTableWidgetItem& item = *table_->item(1, 1);
        QCOMPARE(item.text(), "new");
        QVERIFY(item.font().bold() && item.font().italic());
        QCOMPARE(item.textAlignment(), int(Qt::AlignVCenter | Qt::AlignHCenter));
        QCOMPARE(item.background().color(), QColor(0, 255, 0));
        QCOMPARE(item.toolTip(), "why");
        QVERIFY(events_.isEmpty());
    }

    void MouseEnterAndSpaceAreOneClickEach() {
        const QStringList one{"down 2 1", "click 2 1"};
        ClickCell(*table_, 1, 1);
        QCOMPARE(events_, one);
        for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Space}) {
            events_.clear();
            QTest::keyClick(table_.get(), key);
            QCOMPARE(events_, one);
        }
        QTest::keyClick(table_.get(), Qt::Key_Down);
        QCOMPARE(events_, one);
    }

    void CopyTakesTheSelectedCellsWithTabs() {
        table_->setRangeSelected({0, 1, 1, 2}, true);
        QTest::keyClick(table_.get(), Qt::Key_C, Qt::ControlModifier);
        QCOMPARE(QApplication::clipboard()->text(), "b1\tc1\nb2\tc2\n");
    }

    void AnEditableCellIsEditedInPlace() {
        grid_.SetEditable(1, 1, true);
        mirror_->Flush();
        const auto key = [&](Qt::Key pressed) { QTest::keyClick(table_.get(), pressed); };
        const struct {
            const char* begin;
            std::function<void()> open;
            const char* typed;
            std::function<void()> end;
            QString event;
        } cases[] = {
            {"Enter", [&] { key(Qt::Key_Return); }, "x",
             [&] { QTest::keyClick(Editor(), Qt::Key_Return); }, "type 1 1 b1x"},
            {"F2", [&] { key(Qt::Key_F2); }, "z",
             [&] { QTest::keyClick(Editor(), Qt::Key_Escape); }, ""},
            {"typing", [&] { key(Qt::Key_W); }, "w", [&] { table_->setFocus(); }, "type 1 1 ww"},
            {"untouched", [&] { key(Qt::Key_F2); }, "", [&] { table_->setFocus(); }, ""},
        };
        QApplication::setActiveWindow(table_.get());
        for (const auto& c : cases) {
            table_->setFocus();
            table_->setCurrentCell(0, 1);
            events_.clear();
            c.open();
            QVERIFY2(Editor() != nullptr, c.begin);
            QTest::keyClicks(Editor(), c.typed);
            Set(1, 1, c.begin);  // as a measurement does
            mirror_->Flush();
            c.end();
            QTRY_VERIFY2(Editor() == nullptr, c.begin);
            events_.removeAll("down 1 1");
            QCOMPARE(events_.join(','), c.event);
            QCOMPARE(table_->item(0, 1)->text(), c.begin);  // what the record says, and no other
        }
    }

    void FiguresAreAlignedAndStaleOnesDim() {
        const util::NumberForm form;
        grid_.SetCell(1, 1, util::FixedFigure(-9.5, form), {.back = controls::White});
        grid_.SetStale(1, 1, true);
        mirror_->Flush();
        const QTableWidgetItem& item = *table_->item(0, 1);
        QCOMPARE(item.textAlignment(), int(Qt::AlignVCenter | Qt::AlignRight));
        QCOMPARE(item.foreground().color(), StaleTextOn(Qt::white));
        grid_.SetStale(1, 1, false);
        mirror_->Flush();
        QCOMPARE(item.foreground().color(), QColor(Qt::black));
    }

    void WidthsDependOnSamplesAndNotOnLongNames() {
        const std::string longName(120, 'n');
        grid_.SetSample(1, "-000.000");
        grid_.SetSample(2, "00000");
        mirror_->Flush();
        const int figures = table_->columnWidth(1);
        QVERIFY(figures >= table_->fontMetrics().horizontalAdvance("-000.000"));
        Set(1, 0, longName.c_str());
        mirror_->Flush();
        QVERIFY(3 * table_->columnWidth(0) <= table_->horizontalHeader()->length() + 3);
        QCOMPARE(table_->columnWidth(1), figures);
        const int full = table_->rowHeight(1);
        for (int column = 0; column < 3; ++column) Set(2, column, "");
        mirror_->Flush();
        QVERIFY(2 * table_->rowHeight(1) <= full);
    }

    void TheLargestFontFillsTheRoomAndNoMore() {
        table_->SetMinorColumns({2});
        for (const QSize room : {QSize(1920, 900), QSize(700, 300)}) {
            table_->resize(room);
            table_->SetFitted(true);
            QCoreApplication::processEvents();
            const QSize shown(
                table_->horizontalHeader()->length(),
                table_->verticalHeader()->length() + table_->horizontalHeader()->height());
            QCOMPARE(shown.width(), room.width());
            QVERIFY(shown.height() <= room.height());
            const bool wide = 1.1 * table_->sizeHint().height() > room.height();
            QVERIFY(wide || shown.width() == room.width());
            QVERIFY(table_->fontMetrics().height() > 40);
        }
    }

    void RowZeroIsTheHeadingOfAGridThatGrows() {
        Set(6, 2, "far");
        mirror_->Flush();
        QCOMPARE(table_->rowCount(), 6);
        QCOMPARE(table_->item(5, 2)->text(), "far");
        QCOMPARE(table_->horizontalHeaderItem(2)->text(), "c0");
        grid_.SetRows(4);
        grid_.SetWidth(1, 3000);
        mirror_->Flush();
        QCOMPARE(table_->rowCount(), 3);
        QCOMPARE(table_->columnWidth(1), 200);
    }
};

std::unique_ptr<QObject> GridTests() {
    return std::make_unique<GridTest>();
}

}  // namespace kelvra::desktop

#include "grid_test.moc"
