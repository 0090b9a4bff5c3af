// SPDX-License-Identifier: GPL-3.0-or-later
#include <QSvgRenderer>
#include <QtTest>
#include <limits>

#include "desktop/graph_adapter.h"
#include "desktop/graph_picture.h"
#include "desktop/mirror.h"
#include "desktop/plot_captions.h"
#include "desktop/plot_tickers.h"

namespace kelvra::desktop {

using controls::CursorLook;
using controls::Graph;
using controls::TrackMode;

class GraphTest : public QObject {
    Q_OBJECT

    struct Record {
        controls::Changes changes;
        controls::Window window{changes, "W", "", {}};
        Graph graph{window, "G"};
    };
    std::unique_ptr<Record> record_;
    Graph* graph_ = nullptr;
    std::unique_ptr<Mirror> mirror_;
    std::unique_ptr<GraphWidget> widget_;
    QStringList events_;

    QPoint At(double x, double y) const {
        const PlotScale scale = widget_->Scale();
        return QPointF(scale.PixelX(x), scale.PixelY(y)).toPoint();
    }
    void Press(const QPoint& at, Qt::KeyboardModifiers keys = {}) {
        QTest::mousePress(widget_.get(), Qt::LeftButton, keys, at);
    }
    void Move(const QPoint& at, Qt::MouseButtons held = {}) {
        QMouseEvent move(QEvent::MouseMove, at, widget_->mapToGlobal(at), Qt::NoButton, held, {});
        QCoreApplication::sendEvent(widget_.get(), &move);
    }
    // Several moves in one round of events.
    void Drag(const QPoint& from, const QPoint& to, Qt::KeyboardModifiers keys = {}) {
        Press(from, keys);
        for (const QPoint& at : {(from + to) / 2, to}) Move(at, Qt::LeftButton);
        QTest::mouseRelease(widget_.get(), Qt::LeftButton, keys, to);
    }
    void Wheel(const QPoint& at, int angle) {
        QWheelEvent turn(at, widget_->mapToGlobal(at), {}, {0, angle}, Qt::NoButton, Qt::NoModifier,
                         Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(widget_.get(), &turn);
    }
    QString Shown() const {
        const Graph::Axes& axes = graph_->ShownAxes();
        return QString("%1..%2 %3..%4")
            .arg(axes.x.min, 0, 'f', 1)
            .arg(axes.x.max, 0, 'f', 1)
            .arg(axes.y.min, 0, 'f', 0)
            .arg(axes.y.max, 0, 'f', 0);
    }
    void Paint() {
        mirror_->Flush();
        QCoreApplication::processEvents();
    }
    // What has changed since it was drawn.
    bool HasUndrawn() {
        const Graph::ChangedParts parts = graph_->TakeChangedParts();
        return parts.curve || parts.axes || parts.labels || !parts.cursors.empty();
    }

private slots:
    void init() {
        record_ = std::make_unique<Record>();
        graph_ = &record_->graph;
        graph_->SetX({0, 10});
        graph_->SetY({-100, 0});
        graph_->AddCursor({true, 0, -50, true, CursorLook::Level});
        graph_->AddCursor({false, 5, 0, true, CursorLook::Division});
        graph_->AddCursor({false, 5, 0, true, CursorLook::ZoneStop});
        graph_->AddCursor({false, 8, 0, false, CursorLook::Division});
        graph_->cursorChange.Connect([this](int cursor, double x, double y) {
            events_ << QString("drag %1 %2 %3").arg(cursor).arg(qRound(x)).arg(qRound(y));
        });
        graph_->cursorRelease.Connect(
            [this](int cursor) { events_ << QString("drop %1").arg(cursor); });
        graph_->nudge.Connect([this](int steps) { events_ << QString("nudge %1").arg(steps); });
        mirror_ = std::make_unique<Mirror>(record_->changes);
        widget_ = std::make_unique<GraphWidget>(*graph_);
        mirror_->Add(*graph_, std::make_unique<GraphAdapter>(*graph_, *widget_));
        widget_->resize(600, 400);
        widget_->show();
        Paint();
        events_.clear();
    }

    void cleanup() {
        UseScheme(Scheme::Classic);
        mirror_.reset();
        widget_.reset();
        record_.reset();
    }

    // Of two at the same place, the one that can't be reached elsewhere.
    void ADragMovesTheNearestCursorOnceARound() {
        const struct {
            QPoint from, to;
            const char* events;
            Qt::CursorShape shape;
        } cases[] = {
            {At(2, -50) + QPoint(0, 4), At(2, -30) + QPoint(0, 4), "drag 0 0 -30,drop 0",
             Qt::SizeVerCursor},
            {At(5, -20) + QPoint(3, 0), At(7, -20) + QPoint(3, 0), "drag 2 7 0,drop 2",
             Qt::SizeHorCursor},
            {At(5, -20), At(5, -20) - QPoint(400, 0), "drag 1 0 0,drop 1", Qt::SizeHorCursor},
            {At(8, -20), At(9, -20), "", Qt::ArrowCursor},  // hidden
            {At(6, -20), At(9, -20), "", Qt::ArrowCursor},  // none near
        };
        for (const auto& c : cases) {
            events_.clear();
            Move(c.from);
            QCOMPARE(widget_->cursor().shape(), c.shape);
            Drag(c.from, c.to);
            QCOMPARE(events_.join(','), c.events);
        }
    }

    void ACursorThatGoesWhileItIsDraggedIsLeftAlone() {
        Press(At(5, -20));
        while (graph_->CursorCount() > 1) graph_->RemoveCursor(1);
        Move(At(7, -20));
        QTest::mouseRelease(widget_.get(), Qt::LeftButton, {}, At(7, -20));
        QVERIFY(events_.isEmpty());
    }

    void TheMouseZoomsShiftsAndShowsAll() {
        const auto middle = [this] { return widget_->axisRect()->rect().center(); };
        const QPoint width(widget_->axisRect()->width(), 0);
        Wheel(middle(), 120);
        QCOMPARE(Shown(), "0.0..10.0 -100..0");  // cursors are moved
        graph_->SetTrack(TrackMode::ZoomRectangle);
        Drag(At(2, -20), At(6, -60));
        QCOMPARE(Shown(), "2.0..6.0 -60..-20");
        Drag(middle(), middle() + width / 4);
        QCOMPARE(Shown(), "1.0..5.0 -60..-20");
        Drag(middle(), middle() + width);
        QCOMPARE(Shown(), "0.0..4.0 -60..-20");  // no further than the whole graph
        Drag(middle(), middle() + QPoint(3, 3), Qt::ControlModifier);
        QCOMPARE(Shown(), "0.0..4.0 -60..-20");  // too small
        Drag(At(1, -30), At(2, -50), Qt::ShiftModifier);
        QCOMPARE(Shown(), "1.0..2.0 -50..-30");
        QTest::mouseDClick(widget_.get(), Qt::LeftButton, {}, middle());
        QCOMPARE(Shown(), "0.0..10.0 -100..0");
        Wheel(At(0, -100), 120);
        QCOMPARE(Shown(), "0.0..8.0 -100..-20");
        Wheel(middle(), -240);
        QCOMPARE(Shown(), "0.0..10.0 -100..0");
        QVERIFY(!graph_->Zoomed());
    }

    void ThePositionUnderTheMouseIsReportedOnceARound() {
        graph_->pointed.Connect([this](double x, double y) {
            events_ << QString("at %1 %2").arg(qRound(x)).arg(qRound(y));
        });
        graph_->left.Connect([this] { events_ << "left"; });
        Move(At(2, -20));
        Move(At(3, -40));
        QCoreApplication::processEvents();
        Move(QPoint(1, 1));
        QCoreApplication::processEvents();
        QCOMPARE(events_.join(','), "at 3 -40,left");
    }

    void KeysMoveAndChooseCursors() {
        const struct {
            Qt::Key key;
            Qt::KeyboardModifier with;
            int chosen;
            const char* events;
        } cases[] = {
            {Qt::Key_Left, Qt::NoModifier, -1, ""},
            {Qt::Key_PageDown, Qt::NoModifier, 0, ""},
            {Qt::Key_Left, Qt::NoModifier, 0, ""},  // it is horizontal
            {Qt::Key_Up, Qt::NoModifier, 0, "nudge 1"},
            {Qt::Key_Down, Qt::ShiftModifier, 0, "nudge -10"},
            {Qt::Key_PageDown, Qt::NoModifier, 1, ""},
            {Qt::Key_Right, Qt::ShiftModifier, 1, "nudge 10"},
            {Qt::Key_PageDown, Qt::NoModifier, 2, ""},
            {Qt::Key_PageDown, Qt::NoModifier, 4, ""},  // one between is hidden
            {Qt::Key_PageDown, Qt::NoModifier, 4, ""},
            {Qt::Key_PageUp, Qt::NoModifier, 2, ""},
        };
        graph_->AddCursor({false, 9});
        for (const auto& c : cases) {
            events_.clear();
            QTest::keyClick(widget_.get(), c.key, c.with);
            QCOMPARE(graph_->chosen.Get(), c.chosen);
            QCOMPARE(events_.join(','), c.events);
        }
    }

    void CaptionsNeverOverlapAndNoneIsCut() {
        const QRectF room(50, 10, 500, 300);
        const QFontMetricsF metrics{QFont()};
        for (const int count : {0, 1, 8, 100}) {
            std::vector<Graph::Text> labels;
            for (int i = 0; i < count; ++i) labels.push_back({i + 0.5, 0, "-100.00"});
            const auto captions =
                LayOutCaptions(labels, {room, {{0, double(count)}, {-70, 0}}}, metrics);
            QVERIFY(captions.size() >= std::min<std::size_t>(labels.size(), 5));
            for (std::size_t i = 0; i < captions.size(); ++i) {
                QVERIFY(room.contains(captions[i].place));
                QVERIFY(i == 0 || captions[i].place.left() > captions[i - 1].place.right());
            }
        }
    }

    void AnyNumberOfValuesIsDrawnWithGapsWhereThereIsNone() {
        constexpr double none = std::numeric_limits<double>::quiet_NaN();
        constexpr double endless = std::numeric_limits<double>::infinity();
        std::vector<double> many(1024, -40);
        many[512] = none;
        std::vector<double> wild(10, -40);
        wild[4] = endless, wild[5] = none, wild[6] = -endless, wild[8] = -1e300;
        const struct {
            std::vector<double> values;
            bool lit;  // a quarter from the left
            bool gap;  // in the middle
        } cases[] = {
            {{}, false, true},
            {{-40}, false, true},
            {many, true, false},
            {wild, true, true},
        };
        while (graph_->CursorCount() > 0) graph_->RemoveCursor(0);
        for (const auto& c : cases) {
            const double count = std::max<double>(1, double(c.values.size()));
            graph_->SetCurve({0, 10 / count, c.values});
            Paint();
            const QImage picture = widget_->grab().toImage();
            const auto lit = [&](const QPoint& at) {
                const int half = PlotColour(PlotPart::Curve).green() / 2;
                for (const int y : {-1, 0, 1})
                    if (picture.pixelColor(at + QPoint(0, y)).green() > half) return true;
                return false;
            };
            QCOMPARE(lit(At(2.5, -40)), c.lit);
            QCOMPARE(!lit(At(5.2, -40)), c.gap);
            for (int x = 1; x < widget_->axisRect()->width() - 1; ++x)
                QVERIFY(
                    !lit({widget_->axisRect()->left() + x, At(0, -25).y()}));  // no line up there
        }
    }

    void SeriesHaveTheirOwnColoursWithRangesBehindAndLimitsAround() {
        constexpr double none = std::numeric_limits<double>::quiet_NaN();
        while (graph_->CursorCount() > 0) graph_->RemoveCursor(0);
        const int top = widget_->axisRect()->top();
        graph_->SetCurve({0.5, 1, std::vector<double>(10, -40)});
        graph_->SetSeries({{"A", 0, true, std::vector<double>(10, -40), {}, {}},
                           {"B",
                            8 + 3,
                            false,
                            {-60, -60, -60, none, none, none, -60, -60, -60, -60},
                            std::vector<double>(10, -80),
                            std::vector<double>(10, -55)}});
        graph_->SetLimits({std::nullopt, -20});
        Paint();
        const QImage picture = widget_->grab().toImage();
        const auto has = [&](const QPoint& at, const QColor& colour) {
            for (int x = -8; x < 8; ++x)  // a dash is somewhere
                for (const int y : {-1, 0, 1}) {
                    const QColor pixel = picture.pixelColor(at + QPoint(x, y));
                    const int distance = abs(pixel.red() - colour.red()) +
                                         abs(pixel.green() - colour.green()) +
                                         abs(pixel.blue() - colour.blue());
                    if (distance < 60) return true;
                }
            return false;
        };
        QVERIFY(widget_->axisRect()->top() > top);  // under the legend
        QVERIFY(has(At(1.5, -40), PlotColour(PlotPart::Series1)));
        QVERIFY(has(At(1.5, -60), PlotColour(PlotPart::Series4)));
        QVERIFY(!has(At(4.5, -60), PlotColour(PlotPart::Series4)));
        QVERIFY(has(At(1.5, -20), PlotColour(PlotPart::Limit)));
        const QColor plain = PlotColour(PlotPart::Ground);
        QVERIFY(picture.pixelColor(At(1.7, -70)) != plain);
        QVERIFY(picture.pixelColor(At(1.7, -10)) != plain);
        QCOMPARE(picture.pixelColor(At(1.7, -30)), plain);
    }

    void NumbersAtTheAxesAreTimesAndPrefixes() {
        const auto labels = [](QCPAxisTicker& ticker, int ticks, QCPRange range) {
            ticker.setTickCount(ticks);
            QVector<double> places;
            QVector<QString> texts;
            ticker.generate(range, QLocale::c(), 'g', 6, places, nullptr, &texts);
            return texts.join(", ").replace("\n", " ");
        };
        constexpr double noon = 1'110'196'800, day = 86'400;  // 2005-03-07 12:00
        TimeTicker times;
        PrefixTicker powers;
        const struct {
            QCPAxisTicker& ticker;
            int ticks;
            QCPRange range;
            const char* labels;
        } cases[] = {
            {times, 4, {noon - 1, noon + 45}, "12:00:00 2005-03-07, 12:00:15, 12:00:30, 12:00:45"},
            {times, 3, {noon, noon + 0.05}, "12:00:00.000 2005-03-07, 12:00:00.020, 12:00:00.040"},
            {times,
             4,
             {noon, noon + day},
             "12:00 2005-03-07, 18:00, 00:00 2005-03-08, 06:00, 12:00"},
            {times,
             3,
             {noon, noon + 5 * day},
             "00:00 2005-03-08, 00:00 2005-03-10, 00:00 2005-03-12"},
            {powers, 4, {0, 2e-4}, "0, 50 \u00B5, 100 \u00B5, 150 \u00B5, 200 \u00B5"},
            {powers, 3, {0, 3}, "0, 1, 2, 3"},
            {powers, 2, {-1e-19, 1e-19}, "-0.0001 f, 0, 0.0001 f"},
        };
        for (const auto& c : cases) QCOMPARE(labels(c.ticker, c.ticks, c.range), c.labels);
    }

    void AHiddenGraphDrawsNothingUntilItIsShown() {
        int drawn = 0;
        connect(widget_.get(), &QCustomPlot::afterReplot, [&] { ++drawn; });
        widget_->hide();
        for (const double level : {-20, -30}) {
            graph_->SetCurve({0, 1, {level, level}});
            graph_->SetX({0, -level});
            Paint();
        }
        QCOMPARE(drawn, 0);
        widget_->show();
        Paint();
        QVERIFY(drawn > 0);
        QCOMPARE(widget_->xAxis->range().upper, 30.0);
        QVERIFY(!HasUndrawn());
        drawn = 0;
        graph_->SetCurve({0, 1, {-10, -20}});
        graph_->DragCursor(0, 0, -60);
        Paint();
        QCOMPARE(drawn, 0);  // the axes have not changed
        QVERIFY(!HasUndrawn());
    }

    void ThePictureIsSavedAsPixelsOrLines() {
        const QTemporaryDir folder;
        const std::string path = folder.path().toStdString();
        QCOMPARE(SavePicture(*widget_, path + "/a.png"), "");
        QCOMPARE(QImage(folder.filePath("a.png")).size(), widget_->size());
        QCOMPARE(SavePicture(*widget_, path + "/a.SVG"), "");
        QCOMPARE(QSvgRenderer(folder.filePath("a.SVG")).viewBox().size(), widget_->size());
        QVERIFY(!SavePicture(*widget_, path + "/none/a.png").empty());
    }
};

std::unique_ptr<QObject> GraphTests() {
    return std::make_unique<GraphTest>();
}

}  // namespace kelvra::desktop

#include "graph_test.moc"
