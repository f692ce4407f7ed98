#pragma once

#include "EditFakeView.h"
#include "editor/PropertyPanes.h"

#include <gtest/gtest.h>

#include <QStackedWidget>

#include <array>

namespace zentor::test {

// The window stand-in that also passes the pane calls on to the panes, the way the main
// window does, and shows the chosen pane in a stack.
class PropsFakeView : public FakeEditorView {
public:
    PropertyPanes* panes = nullptr;
    QStackedWidget* stack = nullptr;

    void showPropertyPane(int kind) override {
        FakeEditorView::showPropertyPane(kind);
        if (stack)
            stack->setCurrentIndex(kind);
    }
    void loadObject(int kind, int index) override {
        FakeEditorView::loadObject(kind, index);
        if (panes)
            panes->loadObject(kind, index);
    }
    void showObjectGeometry(int kind, const IntRect& r) override {
        FakeEditorView::showObjectGeometry(kind, r);
        if (panes)
            panes->showObjectGeometry(kind, r);
    }
    void runFileCommand(FileCommand command) override {
        if (panes)
            panes->runFileCommand(command);
    }
};

// The named child of a window or dialog; a missing one fails the test.
template <typename T> T* Find(QWidget& w, const char* name) {
    T* c = w.findChild<T*>(QLatin1String(name));
    EXPECT_NE(c, nullptr) << name;
    return c;
}

// Five bare pane widgets under one host, as the main window's property area gives them.
struct PaneHost {
    QWidget host;
    std::array<QWidget*, 5> panes{};
    PaneHost() {
        for (auto& p : panes)
            p = new QWidget(&host);
    }
    QWidget& pane(int kind) { return *panes[size_t(kind)]; }
};

} // namespace zentor::test
