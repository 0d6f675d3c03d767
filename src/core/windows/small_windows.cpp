#include "core/windows/small_windows.h"

#include "core/button_numbers.h"
#include "core/windows/layout.h"
#include "platform/window_life.h"

namespace ombrelia {

SplashWindow frmSplash;
SizeSelectWindow SizeSelect;
Form3Window Form3;
HelpFrmWindow HelpFrm;

namespace {

constexpr int kSplashMilliseconds = 7000;

void designSplash() {
    designWindow(frmSplash, "frmSplash", "Ombrelia Terrain Editor", 460, 280, Picture::Splash);
    designTimer(frmSplash.Timer1, "Timer1", frmSplash, kSplashMilliseconds);
}

struct SizeButton {
    int number;
    double left, top;
    const char* caption;
    const char* points;
};

constexpr SizeButton kSizeButtons[] = {
    {button::kSizeMiniature, 50, 42, "Miniature", "65 x 65"},
    {button::kSizeSmall, 178, 42, "Small", "129 x 129"},
    {button::kSizeMedium, 50, 98, "Medium", "193 x 193"},
    {button::kSizeLarge, 178, 98, "Large", "257 x 257"},
    {button::kSizeImport, 114, 182, "Import", ""},
};

void designSizeButtons() {
    for (const SizeButton& row : kSizeButtons) {
        Image& face = SizeSelect.NTool.make(row.number);
        designImage(face, "NTool", SizeSelect.Picture1, row.left, row.top, Picture::Stand);
        face.AccessibleName = row.caption;
        designLabel(SizeSelect.LTool.make(row.number), "LTool", SizeSelect.Picture1,
                    {row.left + 9, row.top + 8, face.Width - 18, face.Height - 16}, row.caption,
                    {.align = TextAlign::Center, .bold = true});
        SizeSelect.LTool(row.number).LiesOn = &face;
        designLabel(SizeSelect.SizeLabel.make(row.number), "SizeLabel", SizeSelect.Picture1,
                    {row.left, row.top + 30, face.Width, 13}, row.points,
                    {.size = 10, .color = palette::kTextDim, .align = TextAlign::Center});
    }
}

void designSizeSelect() {
    designWindow(SizeSelect, "SizeSelect", "Ombrelia Terrain Editor", 340, 262,
                 Picture::SizeSelectBack);
    designLabel(SizeSelect.Label11, "Label11", SizeSelect, {26, 0, 280, 22}, "New Map",
                {.size = 12, .color = palette::kText, .bold = true});
    Image& close = SizeSelect.NTool.make(button::kSizeClose);
    designImage(close, "NTool", SizeSelect, 317, 2, Picture::CloseB);
    close.AccessibleName = "Close";
    designPart(SizeSelect.Picture1, "Picture1", SizeSelect, {1, 23, 338, 238});
    designLabel(SizeSelect.Label1, "Label1", SizeSelect.Picture1, {0, 16, 338, 16},
                "Please choose the size of your map:", {.size = 12, .align = TextAlign::Center});
    designLabel(SizeSelect.Label2, "Label2", SizeSelect.Picture1, {0, 158, 338, 16}, kImportLine,
                {.align = TextAlign::Center});
    designSizeButtons();
    for (int i = 0; i < 4; ++i) {
        designLine(SizeSelect.Edge.make(i), "Edge", SizeSelect, 0, 0, 0, 0, palette::kEdge);
    }
}

void designForm3() {
    designWindow(Form3, "Form3", "Ombrelia Terrain Editor", 260, 84, Picture::Form3Back);
    designLabel(Form3.Label1, "Label1", Form3, {0, 22, 260, 24}, "Please Wait...",
                {.size = 15, .align = TextAlign::Center, .bold = true});
    designPart(Form3.Groove, "Groove", Form3, {40, 54, 180, 9}, {Picture::ProgressBack, 0});
    designPart(Form3.Bar, "Bar", Form3, {41, 55, 0, 7}, {Picture::ProgressBar, 0});
}

void designHelpFrm() {
    designWindow(HelpFrm, "HelpFrm", "Ombrelia Terrain Editor Help", 136, 355, Picture::HelpBack);
    designLabel(HelpFrm.HelpLbl, "HelpLbl", HelpFrm, {10, 12, 116, 280},
                "This area displays help on the currently selected tool or object.",
                {.size = 12, .wrap = true});
}

}  // namespace

void showLoaded(double share) {
    Form3.Bar.Width = share * (Form3.Groove.Width - 2);
    refreshControl(Form3);
}

SplashWindow::SplashWindow() {
    Design = designSplash;
}
SizeSelectWindow::SizeSelectWindow() {
    Design = designSizeSelect;
}
Form3Window::Form3Window() {
    Design = designForm3;
}
HelpFrmWindow::HelpFrmWindow() {
    Design = designHelpFrm;
}

}  // namespace ombrelia
