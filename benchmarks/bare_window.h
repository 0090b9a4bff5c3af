// SPDX-License-Identifier: GPL-3.0-or-later
// A window with the controls and texts of Kelvra's main window and no program: the minimum that the
// toolkit costs.
#pragma once

#include <QComboBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QMainWindow>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenuBar>
#include <QPushButton>
#include <QTableWidget>
#include <QToolButton>
#include <QVBoxLayout>

#include "desktop/icons.h"

namespace kelvra::benchmarks {

class BareWindow final : public QMainWindow {
public:
    QTableWidget* results;
    QTableWidget* formulas;

    BareWindow() {
        AddMenus();
        auto* central = new QWidget;
        auto* all = new QVBoxLayout(central);
        auto* top = new QHBoxLayout;
        auto* tools = new QVBoxLayout;
        tools->addLayout(Buttons());
        tools->addLayout(Connection());
        tools->addStretch();
        top->addWidget(Framed(tools), 3);
        formulas = Table(2, {"Name", "Formular", "RESULT"});
        const char* texts[][2] = {{"DIFF", "ABS(X1dB-X2dB)"},
                                  {"SWR", "(1+sqr(X1W/X2W))/(1-sqr(X1W/X2W))"}};
        for (int row : {0, 1})
            for (int column : {0, 1}) formulas->item(row, column)->setText(texts[row][column]);
        formulas->setFixedHeight(140);
        top->addWidget(Framed(Framed(formulas)), 2);
        all->addLayout(top);
        auto* area = new QMdiArea;
        results = Table(
            8, {"Sensor", "Reading\n[W]", "Reading\n[dBm]", "Status", "Sigma\n[dB]", "AVG\nCount"});
        for (int row = 0; row < 8; ++row) {
            QTableWidgetItem* name = results->item(row, 0);
            name->setFont(Bold(Large(name->font())));
            name->setText(row < 2 ? QString("SensSim%1").arg(row + 1) : QString());
        }
        QFont heading = results->font();
        heading.setPointSizeF(1.3 * heading.pointSizeF());
        results->horizontalHeader()->setFont(heading);
        results->verticalHeader()->show();
        area->addSubWindow(Framed(results))->resize(500, 320);
        all->addWidget(area, 1);
        setCentralWidget(central);
        setWindowIcon(desktop::Icon("kelvra"));
        setWindowTitle("Kelvra");
        resize(1000, 660);
    }

private:
    void AddMenus() {
        QMenu* file = menuBar()->addMenu("&File");
        for (const char* entry :
             {"&Load sensor settings", "&Save sensor settings", "&Record Data", "E&xit"})
            file->addAction(entry);
        QMenu* window = menuBar()->addMenu("&Window");
        for (const char* entry : {"Settings always on &top", "&Fit readings", "&Larger readings",
                                  "&Smaller readings", "&Normal readings", "F&ull screen"})
            window->addAction(entry)->setCheckable(true);
        QMenu* colours = window->addMenu("&Colours");
        for (const char* entry : {"Classic", "Calm", "Dark"}) colours->addAction(entry);
        QMenu* help = menuBar()->addMenu("&Help");
        for (const char* entry : {"&Help", "&About"}) help->addAction(entry);
    }

    // As large as the readings are in a window of this size.
    static QFont Large(QFont font) {
        font.setPointSizeF(3 * font.pointSizeF());
        return font;
    }
    static QFont Bold(QFont font) {
        font.setBold(true);
        return font;
    }

    static QFrame* Framed(QLayout* inside) {
        auto* frame = new QFrame;
        frame->setLayout(inside);
        QPalette palette = frame->palette();
        palette.setColor(QPalette::Window, Qt::darkBlue);
        palette.setColor(QPalette::WindowText, Qt::white);
        frame->setPalette(palette);
        frame->setAutoFillBackground(true);
        return frame;
    }
    static QFrame* Framed(QWidget* inside) {
        auto* layout = new QVBoxLayout;
        layout->addWidget(inside);
        return Framed(layout);
    }

    static QLayout* Buttons() {
        auto* row = new QHBoxLayout;
        const struct {
            const char* text;
            const char* icon;
        } buttons[] = {{"&Start", "startPic"}, {"S&top", "stopPic"}, {"S&ettings", "settingsPic"}};
        for (const auto& each : buttons) {
            auto* button = new QPushButton(desktop::Icon(each.icon), each.text);
            button->setIconSize({28, 28});
            row->addWidget(button);
        }
        row->addWidget(Picture("busy1", 28));
        row->addWidget(new QLabel("???"));
        row->addStretch();
        row->addWidget(new QLabel("Synchronisation"));
        row->addWidget(List({"Start Sync", "Sequenced", "Async"}));
        row->addWidget(new QLabel("Sensor"));
        row->addWidget(List({"1: SensSim1", "2: SensSim2"}));
        return row;
    }

    static QLayout* Connection() {
        auto* row = new QHBoxLayout;
        row->addWidget(Picture("connectedPic", 20));
        auto* connected = new QLabel("Simulation Mode");
        connected->setFont(Bold(connected->font()));
        row->addWidget(connected);
        auto* notice = new QLabel(" ");
        notice->setWordWrap(true);
        row->addWidget(Framed(notice), 1);
        for (const char* text : {"Copy", "Details..."}) {
            auto* button = new QToolButton;
            button->setText(text);
            row->addWidget(button);
        }
        return row;
    }

    static QLabel* Picture(const char* name, int size) {
        auto* label = new QLabel;
        label->setPixmap(desktop::PictureOf(name, size, 1));
        return label;
    }

    static QComboBox* List(const QStringList& entries) {
        auto* list = new QComboBox;
        list->addItems(entries);
        return list;
    }

    // Every cell has its item, like a table that a program keeps filling.
    static QTableWidget* Table(int rows, const QStringList& headings) {
        auto* table = new QTableWidget(rows, static_cast<int>(headings.size()));
        table->setHorizontalHeaderLabels(headings);
        table->verticalHeader()->hide();
        table->horizontalHeader()->setMinimumHeight(48);
        for (int row = 0; row < rows; ++row)
            for (int column = 0; column < table->columnCount(); ++column) {
                auto* item = new QTableWidgetItem;
                item->setBackground(Qt::cyan);
                table->setItem(row, column, item);
                table->setColumnWidth(column, 80);
            }
        return table;
    }
};

}  // namespace kelvra::benchmarks
