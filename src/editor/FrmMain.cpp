#include "editor/FrmMain.h"

#include "edit/StatusText.h"
#include "edit/WorkspaceLayout.h"
#include "editor/Autosave.h"
#include "editor/ClipboardActions.h"
#include "editor/EditActions.h"
#include "editor/FileDrops.h"
#include "editor/MediaActions.h"
#include "editor/ProgressRun.h"
#include "editor/PropertyPanes.h"
#include "editor/RecentFilesMenu.h"
#include "editor/ToolbarIcons.h"
#include "editor/WorkspaceWidgets.h"
#include "editor/check/CheckUi.h"
#include "export/ExportCommand.h"
#include "generate/RenderedPictures.h"
#include "generate/ResumeGenerator.h"
#include "model/DefaultDocument.h"
#include "model/ProcessContext.h"
#include "render/ResImages.h"

#ifdef ZENTOR_HAVE_PLAYER
#include "PlayerStub.h"
#include "WinPlayerStub.h"
#endif

#include <QAction>
#include <QApplication>
#include <QCloseEvent>
#include <QComboBox>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QLabel>
#include <QMenuBar>
#include <QProcess>
#include <QScreen>
#include <QScrollBar>
#include <QStatusBar>
#include <QTabBar>
#include <QToolBar>

namespace zentor {

namespace {

constexpr int ToolPaneWidth = 300;
constexpr int TabStripHeight = 30; // the viewport and the vertical bar start below it
constexpr int ScrollBarThickness = 18;

// Strip design captions, positions 1..9; 2..9 are replaced by the tab names at start-up.
const char* const StripCaptions[9] = {
    "Get Started", "Personal", "Objective", "Skills && Interests", "Experience",
    "Education",   "Awards",   "Overview",  "Slide Show"};

} // namespace

FrmMain::FrmMain(Document& doc, const ProcessContext& ctx, Prompter& prompter, const ResImages& res,
                 QWidget* parent)
    : QMainWindow(parent), doc_(doc), ctx_(ctx), prompter_(prompter),
      editor_(doc, ctx, *this, prompter), res_(res) {
    setObjectName(QStringLiteral("FrmMain"));
    if (!res.image(ResLogo).isNull())
        setWindowIcon(QIcon(QPixmap::fromImage(res.image(ResLogo))));

    buildMenus();
    buildToolbar();

    auto* central = new QWidget(this);
    auto* row = new QHBoxLayout(central);
    row->setContentsMargins(4, 4, 4, 4);
    row->setSpacing(4);
    buildPanes();
    buildFrame();
    row->addWidget(picTool_);
    row->addWidget(picFrame_, 1);
    setCentralWidget(central);

    statusBar()->setObjectName(QStringLiteral("StatusBar1"));
    statusPanel_ = new QLabel(QStringLiteral("Ready"), this);
    statusPanel_->setObjectName(QStringLiteral("StatusPanel1"));
    statusBar()->addWidget(statusPanel_, 1);

    panes_ = new PropertyPanes(picElementLoc_, editor_, prompter_, ctx_, this);
    auto* check = new CheckUi(this, *this, editor_, pictures_, mainEdit_);

    // Generation renders with the page painter, from the pictures the workspace has
    // decoded; the self-running kind starts with the player carried in the program.
    packagePictures_ = std::make_unique<RenderedPictures>(res_, &pictures_);
    generator_ = std::make_unique<ResumeGenerator>(ctx_, prompter_, *packagePictures_);
    generator_->setParallel(true);
    editor_.setGenerator([this, check](bool selfRun, const QString& path) {
#ifdef ZENTOR_HAVE_PLAYER
        // Whoever double-clicks an .exe runs Windows; a build without the Windows player
        // writes the Linux one rather than nothing.
        if (selfRun) {
            const QByteArray windows = WindowsPlayerStub();
            generator_->setPlayer(windows.isEmpty() ? PlayerStub() : windows);
        }
#endif
        ProgressRun run(this, selfRun ? QStringLiteral("Generate Selfrun File")
                                      : QStringLiteral("Generate QDV File"));
        generator_->setProgress(run.progress());
        const auto outcome = path.isEmpty() ? generator_->GenerateResume(doc_, selfRun)
                                            : generator_->writePackage(doc_, path, selfRun);
        generator_->setProgress({});
        if (outcome != ResumeGenerator::Outcome::Written)
            return QString();
        check->reportAfterOutput();
        return generator_->writtenPath();
    });
    editor_.setExporter([this, check](ExportKind kind) {
        ProgressRun run(this, ExportTitle(kind));
        QString written;
        RunExport(kind, doc_, prompter_, res_, ctx_, run.progress(), &written, &pictures_);
        if (!written.isEmpty())
            check->reportAfterOutput();
        return written;
    });
    editor_.setLauncher([](const QString& program, const QStringList& args) {
        return QProcess::startDetached(program, args);
    });
    wireWorkspace();
    AcceptFileDrops(this, picWorkSpace_, editor_);
    StartAutosave(this, editor_);
    // Room for an 800 x 600 page beside the tool pane, within the screen.
    QSize size(1280, 860);
    if (const QScreen* screen = QGuiApplication::primaryScreen())
        size = size.boundedTo(screen->availableSize());
    resize(size);
    updateTitle();
    doc_.Dirty.watch([this](bool) { updateTitle(); });
}

FrmMain::~FrmMain() {
    doc_.Dirty.watch({}); // the document outlives the window
    if (hourglass_)
        QApplication::restoreOverrideCursor();
    // The controls outlive the editor (they go with the QObject base): nothing they report
    // while being torn down may reach it.
    for (QObject* child : findChildren<QObject*>())
        child->disconnect(this);
    delete panes_;
    panes_ = nullptr;
    // A check still counting reads pictures_, which goes before the children do.
    delete findChild<CheckUi*>();
}

void FrmMain::buildMenus() {
    struct Item {
        int index;
        const char* caption; // nullptr: a separator
        std::function<void()> run;
    };
    auto fill = [this](QMenu* menu, const QString& prefix, const std::vector<Item>& items) {
        for (const Item& it : items) {
            QAction* a =
                it.caption ? menu->addAction(QString::fromUtf8(it.caption)) : menu->addSeparator();
            a->setObjectName(prefix + QString::number(it.index));
            if (it.run)
                connect(a, &QAction::triggered, this, it.run);
        }
    };
    auto cmd = [this](int index) { return [this, index] { command(index); }; };

    mainFile_ = menuBar()->addMenu(QStringLiteral("&File"));
    mainFile_->setObjectName(QStringLiteral("MainFile"));
    fill(mainFile_, QStringLiteral("SubFile"),
         {{1, "&New", cmd(CmdNew)},
          {2, "&Open...", cmd(CmdOpen)},
          {3, nullptr, {}},
          {4, "&Generate QDV File", cmd(CmdGenerateQdv)},
          {5, "Generate &Selfrun Resume File", cmd(CmdGenerateSelfrun)},
          {11, "Export &PDF...", cmd(CmdExportPdf)},
          {12, "Export &Web Page...", cmd(CmdExportWebPage)},
          {6, nullptr, {}},
          {7, "&Save", cmd(CmdSave)},
          {8, "Save &as...", cmd(CmdSaveAs)},
          {9, nullptr, {}},
          {10, "&Exit", [this] { close(); }}});

    // Added after the original items so their numbered names stay as they were.
    QAction* video = new QAction(QStringLiteral("Export &Video..."), mainFile_);
    video->setObjectName(QStringLiteral("SubFileVideo"));
    mainFile_->insertAction(findChild<QAction*>(QStringLiteral("SubFile6")), video);
    connect(video, &QAction::triggered, this, [this] { command(CmdExportVideo); });

    recent_ = new RecentFilesMenu(new QMenu(QStringLiteral("Open &Recent"), mainFile_), editor_,
                                  [this] { panes_->commitPendingEdit(); });
    mainFile_->insertMenu(findChild<QAction*>(QStringLiteral("SubFile3")), recent_->menu());

    mainEdit_ = menuBar()->addMenu(QStringLiteral("&Edit"));
    mainEdit_->setObjectName(QStringLiteral("MainEdit"));
    fill(mainEdit_, QStringLiteral("SubEdit"),
         {{1, "Insert &Image", cmd(CmdInsertImage)},
          {2, "Insert &Text", cmd(CmdInsertText)},
          {3, "&Delete Selected Object", cmd(CmdDelete)},
          {4, nullptr, {}},
          {5, "&Previous Tab", cmd(CmdPreviousTab)},
          {6, "&Next Tab", cmd(CmdNextTab)},
          {7, "Move To &Top", cmd(CmdMoveToTop)},
          {8, "Move To &Bottom", cmd(CmdMoveToBottom)},
          {9, nullptr, {}},
          {10, "Setting", cmd(CmdSettings)}});
    AddMediaActions(mainFile_, [this](int index) { command(index); });
    AddUndoActions(mainEdit_, editor_, [this] { panes_->commitPendingEdit(); });
    AddClipboardActions(mainEdit_, editor_, [this] { panes_->commitPendingEdit(); });

    mainAbout_ = menuBar()->addMenu(QStringLiteral("&About"));
    mainAbout_->setObjectName(QStringLiteral("MainAbout"));
    auto about = [this](int index) {
        return [this, index] {
            panes_->commitPendingEdit();
            editor_.commitInPlaceEdit();
            editor_.aboutMenu(index);
        };
    };
    fill(mainAbout_, QStringLiteral("SubAbout"),
         {{1, "&Help", about(1)}, {2, "&Visit Homepage", about(2)}});
    mainAbout_->addSeparator();
    fill(mainAbout_, QStringLiteral("SubAbout"), {{6, "&About", about(6)}});

    // The keys desktop users expect, on the same commands.
    auto key = [this](const char* name, const QList<QKeySequence>& keys) {
        if (auto* a = findChild<QAction*>(QString::fromLatin1(name)))
            a->setShortcuts(keys);
    };
    key("SubFile1", {QKeySequence::New});
    key("SubFile2", {QKeySequence::Open});
    key("SubFile7", {QKeySequence::Save});
    // Bound explicitly: several desktops' key themes have no Save As key.
    key("SubFile8", {QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_S)});
    key("SubFile10", {QKeySequence::Quit});
    key("SubEdit3", {QKeySequence::Delete});
    key("SubEdit5", {QKeySequence(Qt::CTRL | Qt::Key_PageUp)});
    key("SubEdit6", {QKeySequence(Qt::CTRL | Qt::Key_PageDown)});
    key("SubAbout1", {QKeySequence::HelpContents});
}

void FrmMain::buildToolbar() {
    toolbar_ = addToolBar(QStringLiteral("Toolbar"));
    toolbar_->setObjectName(QStringLiteral("Toolbar1"));
    toolbar_->setMovable(false);
    toolbar_->setIconSize(QSize(24, 24));
    struct Button {
        int index;
        const char* tip;
    };
    // The button index is the command number; 5, 9 and 14 are separators.
    const Button buttons[] = {{2, "new file"},
                              {3, "open file"},
                              {4, "save file"},
                              {5, nullptr},
                              {6, "insert image"},
                              {7, "insert text"},
                              {8, "delete selected object"},
                              {9, nullptr},
                              {10, "move to top"},
                              {11, "move to bottom"},
                              {12, "previous tab"},
                              {13, "next tab"},
                              {14, nullptr},
                              {15, "Generate QDV File"},
                              {16, "Generate Selfrun Resume"},
                              {17, "setting"}};
    for (const Button& b : buttons) {
        if (!b.tip) {
            toolbar_->addSeparator();
            continue;
        }
        QAction* a = toolbar_->addAction(ToolbarIcon(b.index), QString::fromLatin1(b.tip));
        a->setToolTip(QString::fromLatin1(b.tip));
        a->setObjectName(QStringLiteral("Button%1").arg(b.index));
        a->setData(b.index);
        connect(a, &QAction::triggered, this, [this, i = b.index] { command(i); });
        toolbarActions_[b.index] = a;
    }
}

QAction* FrmMain::toolbarAction(int index) const {
    auto it = toolbarActions_.find(index);
    return it == toolbarActions_.end() ? nullptr : it->second;
}

void FrmMain::buildPanes() {
    picTool_ = new QWidget(this);
    picTool_->setObjectName(QStringLiteral("PicTool"));
    picTool_->setFixedWidth(ToolPaneWidth);
    labPropertity_ = new QLabel(QStringLiteral("Propertity - "), picTool_);
    labPropertity_->setObjectName(QStringLiteral("LabPropertity"));
    QFont bold = labPropertity_->font();
    bold.setBold(true);
    labPropertity_->setFont(bold);
    cmbPropertity_ = new QComboBox(picTool_);
    cmbPropertity_->setObjectName(QStringLiteral("CmbPropertity"));
    connect(cmbPropertity_, &QComboBox::activated, this, [this](int row) {
        panes_->commitPendingEdit();
        editor_.chooseRow(row);
    });
    for (int i = 0; i < 5; ++i) {
        auto* pane = new QFrame(picTool_);
        pane->setObjectName(QStringLiteral("PicElementLoc%1").arg(i));
        pane->setFrameShape(QFrame::StyledPanel);
        pane->setVisible(i == 0);
        picElementLoc_[i] = pane;
    }
    picTool_->installEventFilter(this);
}

void FrmMain::buildFrame() {
    picFrame_ = new QWidget(this);
    picFrame_->setObjectName(QStringLiteral("PicFrame"));
    picFrame_->installEventFilter(this);

    tabTitle_ = new QTabBar(picFrame_);
    tabTitle_->setObjectName(QStringLiteral("TabTitle"));
    tabTitle_->setExpanding(false);
    tabTitle_->setDrawBase(true);
    tabTitle_->setUsesScrollButtons(true);
    tabTitle_->setIconSize(QSize(14, 14));
    // Nine pages share the strip: a slightly smaller type keeps them all in view.
    QFont stripFont = tabTitle_->font();
    stripFont.setPointSizeF(stripFont.pointSizeF() * 0.9);
    tabTitle_->setFont(stripFont);
    for (int i = 0; i < 9; ++i) {
        // Strip position 1 is the profile page, 2..8 tabs 7..1, 9 the slide show.
        const int tab = i == 0 ? 0 : i == 8 ? 8 : 8 - i;
        const int picture = tab == 0 ? ResLogo : tab;
        const QImage icon = res_.image(picture);
        tabTitle_->addTab(icon.isNull()
                              ? QIcon()
                              : QIcon(QPixmap::fromImage(icon.scaled(28, 28, Qt::KeepAspectRatio,
                                                                     Qt::SmoothTransformation))),
                          QString::fromLatin1(StripCaptions[i]));
    }
    connect(tabTitle_, &QTabBar::currentChanged, this, [this] {
        if (syncingStrip_)
            return;
        panes_->commitPendingEdit();
        editor_.stripClicked();
    });

    picShow_ = new QWidget(picFrame_);
    picShow_->setObjectName(QStringLiteral("PicShow"));
    picShow_->setAutoFillBackground(true);
    QPalette pal = picShow_->palette();
    pal.setColor(QPalette::Window, QColor(0x8a, 0x8f, 0x96));
    picShow_->setPalette(pal);
    picShow_->installEventFilter(this);

    picWorkSpace_ = new WorkspaceCanvas(picShow_);
    picWorkSpace_->setObjectName(QStringLiteral("PicWorkSpace"));
    picWorkSpace_->setGeometry(0, 0, 800, 600);

    AddWorkspaceKeys(picWorkSpace_, editor_);
    labAdd_ = new SelectionFrame(picWorkSpace_);
    labAdd_->setObjectName(QStringLiteral("LabAdd"));
    labAdd_->hide();
    for (int k = 0; k < 8; ++k) {
        labSize_[k] = new SizeHandle(k, picWorkSpace_);
        labSize_[k]->setObjectName(QStringLiteral("LabSize%1").arg(k));
        labSize_[k]->resize(7, 7);
        labSize_[k]->hide();
    }
    txtAdd_ = new InPlaceEdit(picWorkSpace_);
    txtAdd_->setObjectName(QStringLiteral("TxtAdd"));
    txtAdd_->hide();

    hsShow_ = new QScrollBar(Qt::Horizontal, picFrame_);
    hsShow_->setObjectName(QStringLiteral("HSShow"));
    vsShow_ = new QScrollBar(Qt::Vertical, picFrame_);
    vsShow_->setObjectName(QStringLiteral("VSShow"));
    for (QScrollBar* bar : {hsShow_, vsShow_}) {
        bar->setRange(0, 0);
        bar->setSingleStep(16);
        bar->setEnabled(false);
    }
    // Scrolling only moves the painted workspace.
    connect(hsShow_, &QScrollBar::valueChanged, this, [this](int v) {
        if (auto left = OffsetFromScroll(hsShow_->minimum(), v))
            picWorkSpace_->move(*left, picWorkSpace_->y());
    });
    connect(vsShow_, &QScrollBar::valueChanged, this, [this](int v) {
        if (auto top = OffsetFromScroll(vsShow_->minimum(), v))
            picWorkSpace_->move(picWorkSpace_->x(), *top);
    });
}

void FrmMain::wireWorkspace() {
    auto button = [](Qt::MouseButton b) {
        return b == Qt::LeftButton    ? MouseButton::Left
               : b == Qt::RightButton ? MouseButton::Right
                                      : MouseButton::Middle;
    };
    auto point = [](QPoint p) { return IntPoint{p.x(), p.y()}; };

    connect(picWorkSpace_, &WorkspaceItem::pressed, this, [=, this](Qt::MouseButton b, QPoint p) {
        panes_->commitPendingEdit();
        editor_.workspaceMouseDown(button(b), point(p));
    });
    connect(picWorkSpace_, &WorkspaceItem::moved, this,
            [=, this](QPoint p) { editor_.workspaceMouseMove(point(p)); });
    connect(picWorkSpace_, &WorkspaceItem::released, this,
            [=, this](Qt::MouseButton b, bool inside) {
                editor_.workspaceMouseUp(button(b));
                if (b == Qt::LeftButton && inside)
                    editor_.workspaceClick();
            });
    connect(picWorkSpace_, &WorkspaceItem::doubleClicked, this,
            [this] { editor_.workspaceDoubleClick(); });

    connect(labAdd_, &WorkspaceItem::pressed, this, [=, this](Qt::MouseButton b, QPoint p) {
        panes_->commitPendingEdit();
        editor_.frameMouseDown(button(b), point(p));
    });
    connect(labAdd_, &WorkspaceItem::moved, this,
            [=, this](QPoint p) { editor_.frameMouseMove(point(p)); });
    connect(labAdd_, &WorkspaceItem::released, this,
            [=, this](Qt::MouseButton b, bool) { editor_.frameMouseUp(button(b)); });
    connect(labAdd_, &WorkspaceItem::doubleClicked, this, [this] { editor_.frameDoubleClick(); });

    for (SizeHandle* h : labSize_) {
        const int k = h->index();
        connect(h, &WorkspaceItem::pressed, this, [=, this](Qt::MouseButton, QPoint p) {
            panes_->commitPendingEdit();
            editor_.handleMouseDown(k, point(p));
        });
        connect(h, &WorkspaceItem::moved, this,
                [=, this](QPoint p) { editor_.handleMouseMove(k, point(p)); });
        connect(h, &WorkspaceItem::released, this,
                [=, this](Qt::MouseButton, bool) { editor_.handleMouseUp(k); });
    }

    connect(txtAdd_, &QPlainTextEdit::textChanged, this, [this] {
        if (inPlaceOpen_)
            editor_.inPlaceTextChanged();
    });
    connect(txtAdd_, &InPlaceEdit::focusLost, this, [this] { editor_.commitInPlaceEdit(); });
    connect(txtAdd_, &InPlaceEdit::commitRequested, this, [this] {
        editor_.commitInPlaceEdit();
        picWorkSpace_->setFocus(Qt::OtherFocusReason);
    });
}

void FrmMain::formLoad() {
    editor_.formLoad();
    editor_.offerRecovery();
}

void FrmMain::command(int index) {
    // The box being edited in the property panel is stored before any command runs.
    panes_->commitPendingEdit();
    editor_.menuCommand(index);
}

void FrmMain::closeEvent(QCloseEvent* e) {
    panes_->commitPendingEdit();
    editor_.commitInPlaceEdit();
    if (!editor_.queryUnload()) {
        e->ignore();
        return;
    }
    e->accept();
    editor_.discardRecovery();
    ctx_.removeWorkFolder();
}

bool FrmMain::eventFilter(QObject* watched, QEvent* e) {
    if (e->type() == QEvent::Resize) {
        if (watched == picFrame_)
            layoutFramePane();
        else if (watched == picShow_)
            viewportResized();
        else if (watched == picTool_)
            layoutToolPane();
    }
    return QMainWindow::eventFilter(watched, e);
}

void FrmMain::layoutFramePane() {
    const FramePaneLayout l = LayoutFramePane(picFrame_->width(), picFrame_->height());
    if (l.viewportWidth < 0 || l.viewportHeight < 0)
        return; // a tiny window leaves the panes as they were
    tabTitle_->setGeometry(0, 0, l.tabStripWidth, TabStripHeight);
    picShow_->setGeometry(0, TabStripHeight, l.viewportWidth, l.viewportHeight);
    hsShow_->setGeometry(0, l.hScrollTop, l.hScrollWidth, ScrollBarThickness);
    vsShow_->setGeometry(l.vScrollLeft, TabStripHeight, ScrollBarThickness, l.vScrollHeight);
}

void FrmMain::layoutToolPane() {
    const int w = picTool_->width();
    labPropertity_->setGeometry(6, 6, w - 12, 22);
    cmbPropertity_->setGeometry(4, 32, w - 8, 28);
    const std::optional<int> h = PropertyPaneHeight(picTool_->height());
    for (QWidget* pane : picElementLoc_) {
        if (h)
            pane->setGeometry(0, 68, w, *h);
        else
            pane->setGeometry(0, 68, w, pane->height());
    }
}

void FrmMain::viewportResized() {
    const QSize vp = picShow_->size();
    const QSize ws = picWorkSpace_->size();
    picWorkSpace_->move(CentreOffset(vp.width(), ws.width()),
                        CentreOffset(vp.height(), ws.height()));
    updateScrollBars(true);
}

void FrmMain::updateScrollBars(bool middleVertically) {
    const QSize vp = picShow_->size();
    const QRect ws = picWorkSpace_->geometry();
    auto apply = [](QScrollBar* bar, const ScrollBarRange& r) {
        QSignalBlocker block(bar);
        bar->setRange(std::min(r.Min, r.Max), std::max(r.Min, r.Max));
        bar->setValue(r.Value);
        bar->setPageStep(std::max(1, std::abs(r.Max - r.Min) / 4));
        bar->setEnabled(r.Min != r.Max);
    };
    apply(hsShow_, ScrollOnViewportResize(vp.width(), ws.width(), ws.x(), false, hsShow_->value()));
    apply(vsShow_, ScrollOnViewportResize(vp.height(), ws.height(), ws.y(), middleVertically,
                                          vsShow_->value()));
}

void FrmMain::updateTitle() {
    const QString name = doc_.ScriptPath.isEmpty() ? QStringLiteral("Untitled")
                                                   : QFileInfo(doc_.ScriptPath).fileName();
    // "[*]" is where the platform puts its modified mark ("cv.qds*" here) while Dirty is set.
    setWindowTitle(name + QStringLiteral("[*] - Vitara Zentor"));
    setWindowModified(doc_.Dirty);
}

} // namespace zentor
