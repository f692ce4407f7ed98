#pragma once

#include "edit/EditorView.h"
#include "editor/PropertyPanes.h"

#include <gtest/gtest.h>

#include <QMap>
#include <QStackedWidget>

#include <array>

namespace zentor::test {

// A window stand-in for the property panes: it passes the pane calls on to the panes the way
// the main window does, shows the chosen pane in a stack and records the rest.
class PropsFakeView : public EditorView {
public:
    PropertyPanes* panes = nullptr;
    QStackedWidget* stack = nullptr;
    QMap<int, QString> strip;
    QStringList rows;
    int row = -1;
    int paints = 0;
    QString caption;

    void paintWorkspace(int, int) override { ++paints; }
    void setObjectRows(const QStringList& r) override { rows = r; }
    void setCurrentRow(int r) override { row = r; }
    void showPropertyPane(int kind) override {
        if (stack)
            stack->setCurrentIndex(kind);
    }
    void setPropertyCaption(const QString& c) override { caption = c; }
    void loadObject(int kind, int index) override {
        if (panes)
            panes->loadObject(kind, index);
    }
    void showObjectGeometry(int kind, const IntRect& r) override {
        if (panes)
            panes->showObjectGeometry(kind, r);
    }
    void showSelectionFrame(bool) override {}
    void placeSelectionFrame(const IntRect&, const std::array<QPointF, 8>&) override {}
    void openInPlaceEditor(const IntRect&, const QString&) override {}
    std::optional<QString> inPlaceText() const override { return std::nullopt; }
    void closeInPlaceEditor(const QString&) override {}
    void setStripCaption(int s, const QString& c) override { strip[s] = c; }
    void selectStrip(int) override {}
    int selectedStrip() const override { return 1; }
    IntPoint viewportSize() const override { return {1000, 800}; }
    void placeWorkspace(const IntRect&) override {}
    void setPointer(PointerTarget, Pointer) override {}
    void setStatusText(const QString&) override {}
    void showEditMenu() override {}
    void runFileCommand(FileCommand command) override {
        if (panes)
            panes->runFileCommand(command);
    }
    void showSettings() override {}
    void showAbout() override {}
    void openUrl(const QString&) override {}
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
