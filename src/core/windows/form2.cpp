#include "core/windows/form2.h"

#include "core/windows/layout.h"

namespace ombrelia {

Form2Window Form2;

namespace {

constexpr double kWidth = 520;
constexpr double kHeight = 530;
constexpr double kCell = 30;
constexpr int kTickMilliseconds = 150;

void designFood() {
    for (int i = 0; i < kFoodPictures; ++i) {
        Image& picture = Form2.Arr.make(i);
        designPart(picture, "Arr", Form2, {0, 0, kCell, kCell}, {Picture::WormFood, i});
        picture.Visible = false;
    }
    designPart(Form2.Label2, "Label2", Form2.Picture1, {0, 0, kCell, kCell});
    Form2.Label2.AccessibleName = "Food";
}

void designForm2() {
    designWindow(Form2, "Form2", "Fun Game", kWidth, kHeight, Picture::None);
    Form2.HasFrame = true;
    Form2.StandsAlone = true;
    Form2.Ground = &Form2.Picture1;
    designSurface(Form2.Picture1, "Picture1", Form2, {0, 0, kWidth, kHeight});
    Form2.Picture1.AccessibleName = "Board";
    designFood();
    designLabel(Form2.Label1, "Label1", Form2.Picture1, {30, 511, 480, 18},
                "More Levels in Ver 2.0!",
                {.size = 12, .color = palette::kAmber, .align = TextAlign::Center, .bold = true});
    Form2.Label1.Visible = false;
    designLabel(Form2.Label28, "Label28", Form2.Picture1, {8, 511, 20, 18}, "1",
                {.color = palette::kTextDim});
    designTimer(Form2.Timer1, "Timer1", Form2, kTickMilliseconds);
}

}  // namespace

Form2Window::Form2Window() {
    Design = designForm2;
}

}  // namespace ombrelia
