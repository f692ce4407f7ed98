#include "model/DefaultDocument.h"

#include <zentor/Version.h>

namespace zentor {

QString ResImageName(int slot) {
    static const char* const names[ResImageCount] = {
        "",         "OVERVIEW", "AWARDS", "EDUCATION", "EXPERIENCE", "SKILLS", "OBJECTIVE",
        "PERSONAL", "PLAYSHOW", "BORDER", "LOGO",      "HIRED",      ""};
    if (slot < 0 || slot >= ResImageCount)
        return QString();
    return QString::fromLatin1(names[slot]);
}

void NewDocument(Document& doc, const ProcessContext& ctx) {
    doc.ScriptPath.clear();

    ScriptHeader& h = doc.Header;
    h = ScriptHeader{};
    h.VersionMajor = VersionMajor;
    h.VersionMinor = VersionMinor;
    h.VersionRevision = VersionRevision;
    h.FrameWidth = 800;
    h.FrameHeight = 600;
    h.ShowSpeed = 20;
    h.BackMusic = QString(); // assigned empty, so blank-padded rather than NUL
    h.AutoRepeat = 1;
    h.MusicVolume = 500;
    h.BackPicture = ctx.defaultBackPicture();
    h.BackColor = 0;
    h.ShowAsRun = 1;
    h.KeepOnTime = 7000;

    doc.Images.fill(ImageElement{});
    doc.Texts.fill(TextElement{});
    doc.Tabs.fill(TabRecord{});

    static const char* const tabNames[MaxTab + 1] = {
        "Slide Show",         "Overview",  "Awards",   "Education", "Experience",
        "Skills & Interests", "Objective", "Personal", "Slide Show"};
    for (int i = 0; i <= MaxTab; ++i)
        doc.Tabs[i].Name = tabNames[i];

    ProfileRecord& p = doc.Profile;
    p = ProfileRecord{};
    p.FirstName = "Quorvix";
    p.LastName = "Vitara";
    p.Email = SupportEmail;
    p.Website = HomePage;
    // UserIcon, Phone, Address and PostCode are never assigned: they stay NUL.

    ImageElement& img = doc.Images[0];
    img.PicAlign = 3;
    img.Left = 0;
    img.Top = 0;
    img.Width = 120;
    img.Height = 120;

    TextElement& txt = doc.Texts[0];
    txt.Left = 0;
    txt.Top = 0;
    txt.Width = 150;
    txt.Height = 150;
    txt.FontName = "Arial";
    txt.FontSize = 12;
    txt.FontColor = -1;
    txt.FontShadow = -1;
    txt.TextHint = 4;

    doc.Dirty = false;
}

} // namespace zentor
