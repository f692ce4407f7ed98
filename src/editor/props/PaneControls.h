#pragma once

#include <array>

class QComboBox;
class QLabel;
class QPushButton;
class QWidget;

namespace zentor {

class CommitLineEdit;
class CommitTextEdit;

// The controls of the five property panes, by their names. Filled by the pane builders.
struct PaneControls {
    // Pane 0: the content page.
    CommitLineEdit* TxtTabName = nullptr;
    QLabel* PicTabIcon = nullptr;
    QPushButton* CmdTabIcon = nullptr;
    CommitLineEdit* TxtTabPicture = nullptr;
    QPushButton* CmdTabPicture = nullptr;
    QComboBox* CombTabPicAlign = nullptr;

    // Pane 1: an image object.
    CommitLineEdit* TxtImgName = nullptr;
    CommitLineEdit* TxtImgFile = nullptr;
    QPushButton* CmdImgFile = nullptr;
    std::array<CommitLineEdit*, 4> ImgLoc{}; // TxtImgLeft, Top, Width, Height

    // Pane 2: a text object.
    CommitLineEdit* TxtTextName = nullptr;
    CommitTextEdit* TxtWord = nullptr;
    CommitLineEdit* TxtFontName = nullptr;
    QPushButton* CmdFont = nullptr;
    QLabel* LabFontColor = nullptr;
    std::array<QComboBox*, 2> CombAlign{};
    QComboBox* CombFontShadow = nullptr;
    QComboBox* CombTextHint = nullptr;
    std::array<CommitLineEdit*, 4> FontLoc{}; // TxtFontLeft, Top, Width, Height

    // Pane 3: the profile.
    CommitLineEdit* TxtFirstName = nullptr;
    CommitLineEdit* TxtLastName = nullptr;
    CommitLineEdit* TxtPhone = nullptr;
    CommitLineEdit* TxtEmail = nullptr;
    CommitLineEdit* TxtWebsite = nullptr;
    CommitLineEdit* TxtAddress = nullptr;
    CommitLineEdit* TxtPostCode = nullptr;
    QLabel* PicUserIcon = nullptr;
    QPushButton* CmdUserIcon = nullptr;
    // The background picture shows on the profile page too, so both panes offer it.
    CommitLineEdit* ProfileBakPic = nullptr; // named TxtBakPic
    QPushButton* ProfileCmdBakPic = nullptr; // named CmdBakPic

    // Pane 4: the slide show and the page background.
    CommitLineEdit* TxtBakPic = nullptr;
    QPushButton* CmdBakPic = nullptr;
    CommitLineEdit* TxtBakMusic = nullptr;
    QPushButton* CmdBakMusic = nullptr;
    QLabel* PicBakColor = nullptr;
    CommitLineEdit* TxtBakColor = nullptr;
    QPushButton* CmdBakColor = nullptr;
    QComboBox* CmbMusicVol = nullptr;
    QComboBox* CmbAutoRepeat = nullptr;
    QComboBox* CmbShowSpeed = nullptr;
    QComboBox* CmbShowAsRun = nullptr;
    CommitLineEdit* TxtKeepOnTime = nullptr;
};

// Each builder lays out one pane's controls inside the window's pane widget.
void BuildTabPane(QWidget* pane, PaneControls& c);
void BuildImagePane(QWidget* pane, PaneControls& c);
void BuildTextPane(QWidget* pane, PaneControls& c);
void BuildProfilePane(QWidget* pane, PaneControls& c);
void BuildShowPane(QWidget* pane, PaneControls& c);

} // namespace zentor
