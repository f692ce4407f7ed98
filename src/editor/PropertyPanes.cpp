#include "editor/PropertyPanes.h"

#include "edit/Editor.h"
#include "edit/ObjectList.h"
#include "edit/PropertyEdit.h"
#include "editor/FrmSet.h"
#include "editor/FrmTextColor.h"
#include "editor/props/CodePageNote.h"
#include "editor/props/CommitEdits.h"
#include "editor/props/PaneControls.h"
#include "model/TabMap.h"
#include "render/PictureCache.h"
#include "render/ResImages.h"
#include "render/WorkspacePainter.h"

#include <QComboBox>
#include <QLabel>
#include <QPixmap>
#include <QPushButton>

#include <functional>
#include <vector>

namespace zentor {

struct PropertyPanes::Impl {
    PropertyPanes* q;
    std::array<QWidget*, 5> panes;
    Editor& editor;
    Prompter& prompter;
    const ProcessContext& ctx;
    EditorView* view = nullptr;
    PaneControls c;
    // The built-in pictures stand in for a tab or user icon that was never chosen.
    ResImages res = ResImages::load();
    PictureCache cache{16LL * 1024 * 1024};
    // What each pane was last filled for; its controls write there.
    std::array<PropertyTarget, 5> targets{};
    // Every committing box with its commit, for commitPendingEdit.
    std::vector<std::pair<QWidget*, std::function<void()>>> commits;

    Impl(PropertyPanes* q, const std::array<QWidget*, 5>& panes, Editor& editor, Prompter& prompter,
         const ProcessContext& ctx)
        : q(q), panes(panes), editor(editor), prompter(prompter), ctx(ctx) {}

    Document& doc() { return editor.document(); }
    void refresh() { editor.RefreshTab(editor.state().CurrentTab); }

    void build();
    void wireText(int pane, CommitLineEdit* box, PropertyText kind);
    void commitText(int pane, PropertyText kind, CommitLineEdit* box);
    void wireLocation(int kind, const std::array<CommitLineEdit*, 4>& boxes);
    void enterLoc(int kind);
    void wireCombo(int pane, QComboBox* combo, PropertyCombo kind);
    void wireFile(QPushButton* button, int pane, FileChoice choice);
    void chooseFile(const PropertyTarget& t, FileChoice choice);
    void chooseFont();
    void chooseBackColor();

    void showBackPicture();
    void showBackColor();
    void showGeometry(int kind, const IntRect& r);
    void fill(int kind, int index);
};

void PropertyPanes::Impl::build() {
    BuildTabPane(panes[KindTab], c);
    BuildImagePane(panes[KindImage], c);
    BuildTextPane(panes[KindText], c);
    BuildProfilePane(panes[KindProfile], c);
    BuildShowPane(panes[KindSlideShow], c);
    for (QWidget* pane : panes) {
        for (auto* box : pane->findChildren<CommitLineEdit*>())
            AttachCodePageNote(box);
        for (auto* box : pane->findChildren<CommitTextEdit*>())
            AttachCodePageNote(box);
    }

    wireText(KindTab, c.TxtTabName, PropertyText::TabName);
    wireFile(c.CmdTabIcon, KindTab, FileChoice::TabIcon);
    wireFile(c.CmdTabPicture, KindTab, FileChoice::TabPicture);
    wireCombo(KindTab, c.CombTabPicAlign, PropertyCombo::TabPicAlign);

    wireText(KindImage, c.TxtImgName, PropertyText::ImgName);
    wireFile(c.CmdImgFile, KindImage, FileChoice::ImageFile);
    wireLocation(KindImage, c.ImgLoc);

    wireText(KindText, c.TxtTextName, PropertyText::TextName);
    wireLocation(KindText, c.FontLoc);
    wireCombo(KindText, c.CombAlign[0], PropertyCombo::AlignH);
    wireCombo(KindText, c.CombAlign[1], PropertyCombo::AlignV);
    wireCombo(KindText, c.CombFontShadow, PropertyCombo::FontShadow);
    wireCombo(KindText, c.CombTextHint, PropertyCombo::TextHint);
    QObject::connect(c.CmdFont, &QPushButton::clicked, q, [this] { chooseFont(); });
    {
        CommitTextEdit* word = c.TxtWord;
        auto commit = [this, word] {
            const TextCommit r = CommitPropertyText(doc(), targets[KindText], PropertyText::Word,
                                                    word->toPlainText());
            if (r.refresh)
                refresh();
        };
        QObject::connect(word, &CommitTextEdit::committed, q, commit);
        QObject::connect(word, &CommitTextEdit::edited, q, [this] { doc().Dirty = true; });
        commits.emplace_back(word, commit);
    }

    wireText(KindProfile, c.TxtFirstName, PropertyText::FirstName);
    wireText(KindProfile, c.TxtLastName, PropertyText::LastName);
    wireText(KindProfile, c.TxtPhone, PropertyText::Phone);
    wireText(KindProfile, c.TxtEmail, PropertyText::Email);
    wireText(KindProfile, c.TxtWebsite, PropertyText::Website);
    wireText(KindProfile, c.TxtAddress, PropertyText::Address);
    wireText(KindProfile, c.TxtPostCode, PropertyText::PostCode);
    wireFile(c.CmdUserIcon, KindProfile, FileChoice::UserIcon);
    wireFile(c.ProfileCmdBakPic, KindProfile, FileChoice::BackPicture);

    wireFile(c.CmdBakPic, KindSlideShow, FileChoice::BackPicture);
    wireFile(c.CmdBakMusic, KindSlideShow, FileChoice::BackMusic);
    QObject::connect(c.CmdBakColor, &QPushButton::clicked, q, [this] { chooseBackColor(); });
    wireCombo(KindSlideShow, c.CmbMusicVol, PropertyCombo::MusicVol);
    wireCombo(KindSlideShow, c.CmbAutoRepeat, PropertyCombo::AutoRepeat);
    wireCombo(KindSlideShow, c.CmbShowSpeed, PropertyCombo::ShowSpeed);
    wireCombo(KindSlideShow, c.CmbShowAsRun, PropertyCombo::ShowAsRun);
    wireText(KindSlideShow, c.TxtKeepOnTime, PropertyText::KeepOnTime);
}

void PropertyPanes::Impl::wireText(int pane, CommitLineEdit* box, PropertyText kind) {
    box->setCommitOnEnter(CommitsOnEnter(kind));
    auto commit = [this, pane, kind, box] { commitText(pane, kind, box); };
    QObject::connect(box, &CommitLineEdit::committed, q, commit);
    if (MarksDirtyOnChange(kind))
        QObject::connect(box, &QLineEdit::textEdited, q, [this] { doc().Dirty = true; });
    commits.emplace_back(box, commit);
}

void PropertyPanes::Impl::commitText(int pane, PropertyText kind, CommitLineEdit* box) {
    const QString text = box->text();
    const TextCommit r = CommitPropertyText(doc(), targets[size_t(pane)], kind, text);
    if (!r.stored) {
        // Not a number: the box shows again what is kept.
        box->fill(PropertyBoxText(doc(), targets[size_t(pane)], kind));
        return;
    }
    if (r.renameStrip && view)
        view->setStripCaption(GetTabIndex(targets[size_t(pane)].tab), text);
    if (r.refresh)
        refresh();
}

void PropertyPanes::Impl::wireLocation(int kind, const std::array<CommitLineEdit*, 4>& boxes) {
    for (CommitLineEdit* box : boxes) {
        auto commit = [this, kind] { enterLoc(kind); };
        QObject::connect(box, &CommitLineEdit::committed, q, commit);
        commits.emplace_back(box, commit);
    }
}

void PropertyPanes::Impl::enterLoc(int kind) {
    const int slot = targets[size_t(kind)].slot;
    const std::optional<IntRect> record = ObjectRect(doc(), kind, slot);
    const EditorState& st = editor.state();
    // The frame belongs to the selection: boxes of an object no longer selected move nothing.
    if (!record || st.SelectedKind != kind || st.SelectedIndex != slot)
        return;
    const auto& boxes = kind == KindImage ? c.ImgLoc : c.FontLoc;
    IntRect r = LocationFromBoxes(
        {boxes[0]->text(), boxes[1]->text(), boxes[2]->text(), boxes[3]->text()}, *record);
    editor.moveAdd(r);
    editor.RefreshData();
    const std::optional<IntRect> now = ObjectRect(doc(), kind, slot);
    if (now && !(*now == *record))
        doc().Dirty = true;
    // What the record holds now, whether or not the window passed the geometry on.
    if (now)
        showGeometry(kind, *now);
    refresh();
}

void PropertyPanes::Impl::wireCombo(int pane, QComboBox* combo, PropertyCombo kind) {
    QObject::connect(combo, &QComboBox::activated, q, [this, pane, kind](int row) {
        if (CommitCombo(doc(), targets[size_t(pane)], kind, row) && ComboRefreshes(kind))
            refresh();
    });
}

void PropertyPanes::Impl::wireFile(QPushButton* button, int pane, FileChoice choice) {
    QObject::connect(button, &QPushButton::clicked, q,
                     [this, pane, choice] { chooseFile(targets[size_t(pane)], choice); });
}

void PropertyPanes::Impl::chooseFile(const PropertyTarget& t, FileChoice choice) {
    const QString path = ChooseAndStoreFile(prompter, doc(), t, choice);
    if (path.isEmpty())
        return;
    switch (choice) {
    case FileChoice::UserIcon:
        c.PicUserIcon->setPixmap(QPixmap::fromImage(UserIconPreview(doc(), res, &cache)));
        break;
    case FileChoice::TabIcon:
        c.PicTabIcon->setPixmap(QPixmap::fromImage(TabIconPreview(doc(), t.tab, res, &cache)));
        break;
    case FileChoice::TabPicture:
        c.TxtTabPicture->fill(path);
        break;
    case FileChoice::ImageFile:
        c.TxtImgFile->fill(path);
        break;
    case FileChoice::BackPicture:
        showBackPicture();
        break;
    case FileChoice::BackMusic:
        c.TxtBakMusic->fill(path);
        break;
    }
    if (FileChoiceFor(choice).refresh)
        refresh();
}

void PropertyPanes::Impl::chooseFont() {
    const PropertyTarget t = targets[KindText];
    if (t.slot < 0 || t.slot > MaxTexts)
        return;
    FrmTextColor dialog(doc(), t.slot, panes[KindText]->window());
    dialog.exec();
    c.TxtFontName->fill(TrimStoredFontName(doc(), t));
    refresh();
}

void PropertyPanes::Impl::chooseBackColor() {
    ChooseAndStoreBackColor(prompter, doc());
    showBackColor();
}

void PropertyPanes::Impl::showBackPicture() {
    const QString path = doc().Header.BackPicture.trimNull();
    c.TxtBakPic->fill(path);
    c.ProfileBakPic->fill(path);
}

void PropertyPanes::Impl::showBackColor() {
    const int32_t v = doc().Header.BackColor;
    QPalette pal = c.PicBakColor->palette();
    pal.setColor(QPalette::Window, QColor::fromRgba(BackColorArgb(v)));
    c.PicBakColor->setPalette(pal);
    c.TxtBakColor->fill(BackColorText(v));
}

void PropertyPanes::Impl::showGeometry(int kind, const IntRect& r) {
    if (kind != KindImage && kind != KindText)
        return;
    const auto& boxes = kind == KindImage ? c.ImgLoc : c.FontLoc;
    const int values[4] = {r.Left, r.Top, r.Width, r.Height};
    for (int i = 0; i < 4; ++i)
        boxes[size_t(i)]->fill(QString::number(values[i]));
}

void PropertyPanes::Impl::fill(int kind, int index) {
    const EditorState& st = editor.state();
    Document& d = doc();
    auto setRow = [&](QComboBox* combo, const PropertyTarget& t, PropertyCombo which) {
        combo->setCurrentIndex(ComboRowFromDocument(d, t, which));
    };
    switch (kind) {
    case KindTab: {
        const PropertyTarget t{index, 0};
        targets[KindTab] = t;
        c.PicTabIcon->setPixmap(QPixmap::fromImage(TabIconPreview(d, index, res, &cache)));
        c.TxtTabName->fill(PropertyBoxText(d, t, PropertyText::TabName));
        c.TxtTabPicture->fill(StoredFile(d, t, FileChoice::TabPicture));
        setRow(c.CombTabPicAlign, t, PropertyCombo::TabPicAlign);
        break;
    }
    case KindImage: {
        const PropertyTarget t{st.CurrentTab, index};
        targets[KindImage] = t;
        c.TxtImgName->fill(PropertyBoxText(d, t, PropertyText::ImgName));
        c.TxtImgFile->fill(StoredFile(d, t, FileChoice::ImageFile));
        if (const auto r = ObjectRect(d, KindImage, index))
            showGeometry(KindImage, *r);
        break;
    }
    case KindText: {
        const PropertyTarget t{st.CurrentTab, index};
        targets[KindText] = t;
        c.TxtWord->setTextQuietly(PropertyBoxText(d, t, PropertyText::Word));
        c.TxtTextName->fill(PropertyBoxText(d, t, PropertyText::TextName));
        if (const auto r = ObjectRect(d, KindText, index))
            showGeometry(KindText, *r);
        if (index >= 0 && index <= MaxTexts) {
            c.TxtFontName->fill(d.Texts[index].FontName.trimNull());
            c.LabFontColor->setText(FontColorText(d.Texts[index].FontColor));
        }
        setRow(c.CombAlign[0], t, PropertyCombo::AlignH);
        setRow(c.CombAlign[1], t, PropertyCombo::AlignV);
        setRow(c.CombTextHint, t, PropertyCombo::TextHint);
        setRow(c.CombFontShadow, t, PropertyCombo::FontShadow);
        break;
    }
    case KindProfile: {
        const PropertyTarget t{st.CurrentTab, 0};
        targets[KindProfile] = t;
        const std::pair<CommitLineEdit*, PropertyText> boxes[] = {
            {c.TxtFirstName, PropertyText::FirstName}, {c.TxtLastName, PropertyText::LastName},
            {c.TxtPhone, PropertyText::Phone},         {c.TxtEmail, PropertyText::Email},
            {c.TxtWebsite, PropertyText::Website},     {c.TxtAddress, PropertyText::Address},
            {c.TxtPostCode, PropertyText::PostCode}};
        for (const auto& [box, which] : boxes)
            box->fill(PropertyBoxText(d, t, which));
        showBackPicture();
        c.PicUserIcon->setPixmap(QPixmap::fromImage(UserIconPreview(d, res, &cache)));
        break;
    }
    case KindSlideShow: {
        const PropertyTarget t{st.CurrentTab, 0};
        targets[KindSlideShow] = t;
        setRow(c.CmbMusicVol, t, PropertyCombo::MusicVol);
        setRow(c.CmbAutoRepeat, t, PropertyCombo::AutoRepeat);
        setRow(c.CmbShowSpeed, t, PropertyCombo::ShowSpeed);
        setRow(c.CmbShowAsRun, t, PropertyCombo::ShowAsRun);
        c.TxtKeepOnTime->fill(PropertyBoxText(d, t, PropertyText::KeepOnTime));
        c.TxtBakMusic->fill(StoredFile(d, t, FileChoice::BackMusic));
        showBackColor();
        showBackPicture();
        break;
    }
    default:
        break;
    }
}

PropertyPanes::PropertyPanes(const std::array<QWidget*, 5>& panes, Editor& editor,
                             Prompter& prompter, const ProcessContext& ctx, QObject* parent)
    : QObject(parent), d_(new Impl(this, panes, editor, prompter, ctx)) {
    // The main window is both the panes' owner and the editor's view.
    d_->view = dynamic_cast<EditorView*>(parent);
    d_->build();
}

PropertyPanes::~PropertyPanes() {
    delete d_;
}

void PropertyPanes::setView(EditorView* view) {
    d_->view = view;
}

void PropertyPanes::loadObject(int kind, int index) {
    d_->fill(kind, index);
}

void PropertyPanes::showObjectGeometry(int kind, const IntRect& r) {
    d_->showGeometry(kind, r);
}

void PropertyPanes::runFileCommand(EditorView::FileCommand command) {
    using FC = EditorView::FileCommand;
    FileChoice choice = FileChoice::UserIcon;
    switch (command) {
    case FC::UserIcon:
        choice = FileChoice::UserIcon;
        break;
    case FC::TabPicture:
        choice = FileChoice::TabPicture;
        break;
    case FC::ImageFile:
        choice = FileChoice::ImageFile;
        break;
    case FC::BackPicture:
        choice = FileChoice::BackPicture;
        break;
    }
    d_->chooseFile(CurrentTarget(d_->editor.state()), choice);
}

void PropertyPanes::commitPendingEdit() {
    for (const auto& [box, commit] : d_->commits) {
        if (box->hasFocus() && box->isVisible()) {
            commit();
            return;
        }
    }
}

bool PropertyPanes::showSettings(QWidget* parent) {
    FrmSet dialog(d_->doc(), d_->prompter, parent);
    if (dialog.exec() != QDialog::Accepted)
        return false;
    if (d_->editor.state().SelectedKind == KindSlideShow)
        d_->fill(KindSlideShow, 1);
    return true;
}

} // namespace zentor
