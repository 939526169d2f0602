#include "services/Trasparency.h"

#include "services/Platform.h"

#include <chrono>
#include <thread>

namespace vellarno {

namespace {

constexpr int FirstAlpha = 10;
constexpr int Opaque = 255;
constexpr std::chrono::milliseconds StepTime{3};

}

bool IsLayeredCapable()
{
    return System().Compositing();
}

void FadeInForm(forms::Form& Form)
{
    if (!IsLayeredCapable()) return;
    Form.SetAlpha(FirstAlpha);
    Form.Show();
    for (int alpha = FirstAlpha; alpha <= Opaque && Form.Visible(); ++alpha) {
        Form.SetAlpha(alpha);
        std::this_thread::sleep_for(StepTime);
        forms::DoEvents();
    }
}

}
