// SPDX-License-Identifier: GPL-3.0-or-later
// Adapters of labels, buttons, menu entries, lists, pictures and frames: one short class each.
#pragma once

#include <QAction>
#include <QComboBox>
#include <QFrame>
#include <QLabel>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QPushButton>

#include "controls/kinds.h"
#include "controls/list.h"
#include "desktop/grid_measures.h"
#include "desktop/schemes.h"
#include "desktop/widget_adapter.h"

namespace kelvra::desktop {

class LabelAdapter final : public WidgetAdapter {
public:
    // `named` is the control that the label describes; the label shows its mnemonic.
    LabelAdapter(const controls::Label& label, QLabel& widget,
                 const controls::Control* named = nullptr);
    void Update() override;

private:
    const controls::Label& label_;
    QLabel& widget_;
    const controls::Control* named_;
    QString shown_;
};

// A label that acts as a link.
class LinkAdapter final : public WidgetAdapter {
public:
    LinkAdapter(controls::Label& label, QPushButton& widget);
    void Update() override;

private:
    controls::Label& label_;
    QPushButton& widget_;
};

// A label of many lines, which can be scrolled, selected and copied.
class LongLabelAdapter final : public WidgetAdapter {
public:
    LongLabelAdapter(const controls::Label& label, QPlainTextEdit& widget);
    void Update() override;

private:
    const controls::Label& label_;
    QPlainTextEdit& widget_;
};

class ButtonAdapter final : public WidgetAdapter {
public:
    ButtonAdapter(controls::Button& button, QPushButton& widget);
    void Update() override;

private:
    controls::Button& button_;
    QPushButton& widget_;
};

class MenuItemAdapter final : public Adapter {
public:
    MenuItemAdapter(controls::MenuItem& item, QAction& action);
    void Update() override;

private:
    controls::MenuItem& item_;
    QAction& action_;
};

// A check box or a button as an entry of a menu, for a window with little room.
template <class Own>
class EntryAdapter final : public Adapter {
public:
    EntryAdapter(Own& own, QAction& action);
    void Update() override;

private:
    Own& own_;
    QAction& action_;
};

// A list as wide as its entries, but no wider than 24 characters: it shows the two ends of a longer
// entry. The wheel never changes the choice, since the pointer may be over it while the page
// scrolls.
class ListWidget final : public QComboBox {
public:
    ListWidget();
    QSize sizeHint() const override { return Bounded(QComboBox::sizeHint(), MostCharacters); }
    QSize minimumSizeHint() const override {
        return Bounded(QComboBox::minimumSizeHint(), LeastCharacters);
    }

protected:
    void paintEvent(QPaintEvent* event) override;
    bool event(QEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

private:
    static constexpr int LeastCharacters = 6;

    QSize Bounded(const QSize& size, int characters) const;
};

class ListAdapter final : public WidgetAdapter {
public:
    ListAdapter(controls::List& list, QComboBox& widget);
    void Update() override;

private:
    void Fill();

    controls::List& list_;
    QComboBox& widget_;
    std::vector<controls::List::Item> shown_;
};

// A list with all its entries in sight.
class ListBoxAdapter final : public WidgetAdapter {
public:
    ListBoxAdapter(controls::List& list, QListWidget& widget);
    void Update() override;

private:
    controls::List& list_;
    QListWidget& widget_;
    std::vector<controls::List::Item> shown_;
};

class PictureAdapter final : public WidgetAdapter {
public:
    // `size` is the side of the picture in logical pixels.
    PictureAdapter(const controls::Picture& picture, QLabel& widget, int size)
        : picture_(picture), widget_(widget), size_(size) {}
    void Update() override;

private:
    const controls::Picture& picture_;
    QLabel& widget_;
    int size_;
    std::string shown_;
    Scheme scheme_ = Scheme::Classic;
};

class FrameAdapter final : public WidgetAdapter {
public:
    FrameAdapter(const controls::Frame& frame, QWidget& widget) : frame_(frame), widget_(widget) {}
    void Update() override;

private:
    const controls::Frame& frame_;
    QWidget& widget_;
};

}  // namespace kelvra::desktop
