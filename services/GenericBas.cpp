#include "services/GenericBas.h"

#include "services/Platform.h"
#include "services/forms/CheckBox.h"
#include "services/forms/CommandButton.h"
#include "services/forms/OptionButton.h"

#include <filesystem>

namespace vellarno {

namespace {

constexpr const char* HelpFileName = "HelpVellarno.htm";

}

bool OnTopFlag = false;

void SetHandCursor(forms::Control& Control)
{
    Control.SetMousePointer(forms::Pointer::Hand);
}

void SetHandCursor(const forms::Form& Form)
{
    for (forms::Control* control : Form.Controls()) {
        const bool pressed = dynamic_cast<forms::CheckBox*>(control) ||
                             dynamic_cast<forms::OptionButton*>(control) ||
                             dynamic_cast<forms::CommandButton*>(control);
        if (pressed) SetHandCursor(*control);
    }
}

void PlayResSound(resources::Sound Id)
{
    System().PlaySound(forms::ReadResource(resources::Path(Id)));
    forms::DoEvents();
}

void SetAlwaysOnTop(forms::Form& Form, bool OnTop)
{
    Form.SetTopmost(OnTop);
}

std::string GetTempDirectory()
{
    const std::string folder = System().PrivateFolder();
    return folder.empty() ? folder : folder + '/';
}

std::string HelpFilePath()
{
    return GetTempDirectory() + HelpFileName;
}

bool FileExists(const std::string& Path)
{
    std::error_code ignored;
    const auto status = std::filesystem::status(Path, ignored);
    return std::filesystem::exists(status) && !std::filesystem::is_directory(status);
}

}
