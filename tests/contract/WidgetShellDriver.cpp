#include "contract/ShellDriver.h"

#include "contract/WidgetUser.h"
#include "support/ModalScript.h"
#include "ui/qt/dialogs/shell/WidgetShell_p.h"

#include <QFileDialog>

namespace morvane::test {

namespace {

class WidgetShellDriver final : public ShellDriver
{
public:
    ui::Shell& shell() override { return m_shell; }
    HRESULT show(IFileDialog& dialog, const std::function<void(ShellUser&)>& play) override
    {
        ModalScript script;
        script.on<QFileDialog>([&play](QFileDialog& window) {
            const QPointer<QFileDialog> guard(&window);
            WidgetUser user(window);
            play(user);
            if (guard && guard->isVisible()) {
                guard->reject();
            }
        });
        return dialog.Show(nullptr);
    }

private:
    ui::WidgetShell m_shell{ui::WidgetShell::Appearance::AlwaysWidgets};
};

} // namespace

std::unique_ptr<ShellDriver> makeWidgetShellDriver()
{
    return std::make_unique<WidgetShellDriver>();
}

} // namespace morvane::test
