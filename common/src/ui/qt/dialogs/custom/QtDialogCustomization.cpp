// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "ui/qt/dialogs/custom/QtDialogCustomization_p.h"

#include "ui/qt/dialogs/shell/ComSupport_p.h"
#include "ui/qt/dialogs/shell/DialogWarning_p.h"

#include <QFileInfo>

#include <utility>

namespace morvane::ui {

/** The controls as an object of their own, because there is no dialog object of a Shell. */
class QtDialogCustomization::Widgets : public CustomControls
{
public:
    using CustomControls::CustomControls;

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID riid, void** object) override
    {
        static const QITAB table[] = {interfaceRow<IFileDialogCustomize, Widgets>(), QITAB{}};
        return searchInterfaces(this, table, riid, object);
    }
};

QtDialogCustomization::QtDialogCustomization(
    QFileDialog& dialog, std::function<void(const std::string&)> setGeometryKey)
    : m_dialog(&dialog),
      m_setGeometryKey(std::move(setGeometryKey)),
      m_widgets(new ComObject<Widgets>(actions())),
      m_controls(freeTaskMemory, [this] { return ComPtr<IFileDialogCustomize>::share(m_widgets.get()); })
{
}

QtDialogCustomization::~QtDialogCustomization() = default;

void QtDialogCustomization::leaveDialog()
{
    m_places.removeFrom(*m_dialog);
    m_dialog = nullptr;
}

void QtDialogCustomization::beginRun(bool hasKeptSize)
{
    if (m_isRunning) {
        return;
    }
    m_isRunning = true;
    m_thrown = nullptr;
    const bool isFirst = std::exchange(m_isFirstRun, false);
    const QString folder = isFirst ? m_memory.folder() : QString();
    if (!folder.isEmpty() && QFileInfo(folder).isDir()) {
        m_dialog->setDirectory(folder);
    }
    m_places.addTo(*m_dialog);
    if (!m_widgets->isEmpty()) {
        m_widgets->showIn(
            *m_dialog, [](const QString&) {}, isFirst && !hasKeptSize);
    }
    m_controls.setOpen(true);
}

void QtDialogCustomization::endRun(bool accepted)
{
    if (!m_isRunning) {
        return;
    }
    m_isRunning = false;
    m_controls.setOpen(false);
    m_widgets->detach();
    m_places.removeFrom(*m_dialog);
    if (accepted) {
        m_memory.keepFolder(m_dialog->directory().absolutePath());
    }
}

void QtDialogCustomization::rethrow()
{
    if (m_thrown) {
        std::rethrow_exception(std::exchange(m_thrown, nullptr));
    }
}

bool QtDialogCustomization::mayAccept(const QStringList& paths)
{
    bool accepted = false;
    guarded([&] {
        m_widgets->reportSelections();
        if (const auto rejection = m_controls.finishTexts()) {
            accepted = refuse(*rejection);
            return;
        }
        const AcceptanceCheck check = m_check; // the check may replace itself
        const ValidationResult result = check ? check(paths) : ValidationResult();
        accepted = result.isValid() || refuse(result.errorString());
    });
    return accepted;
}

void QtDialogCustomization::setAcceptButtonText(const std::string& text)
{
    if (!text.empty()) {
        m_dialog->setLabelText(QFileDialog::Accept, QString::fromStdString(text));
    }
}

void QtDialogCustomization::setFileNameLabel(const std::string& label)
{
    if (!label.empty()) {
        m_dialog->setLabelText(QFileDialog::FileName, QString::fromStdString(label));
    }
}

void QtDialogCustomization::addPlace(const std::string& folder, bool atTop)
{
    const QFileInfo place(QString::fromStdString(folder));
    if (place.isDir()) {
        m_places.add(place.absoluteFilePath(), atTop);
    }
}

void QtDialogCustomization::setMemoryKey(const std::string& key)
{
    if (key.empty()) {
        return;
    }
    m_memory.setKey("QExtendedFileDialog/Memory/" + key);
    m_setGeometryKey(m_memory.geometryKey());
}

ControlActions QtDialogCustomization::actions()
{
    ControlActions actions;
    actions.clicked = [this](DWORD control) {
        guarded([&] {
            m_controls.finishTexts();
            m_controls.buttonClicked(control);
        });
    };
    actions.toggled = [this](DWORD control, bool checked) {
        guarded([&] {
            m_controls.finishTexts();
            m_controls.checkButtonToggled(control, checked ? TRUE : FALSE);
        });
    };
    actions.itemSelected = [this](DWORD control, DWORD item) {
        guarded([&] {
            m_controls.finishTexts();
            m_controls.itemSelected(control, item);
        });
    };
    actions.edited = [this](DWORD, const QString&) { guarded([this] { m_controls.readTexts(); }); };
    return actions;
}

void QtDialogCustomization::guarded(const std::function<void()>& call)
{
    const auto self = shared_from_this(); // the host may destroy the dialog
    try {
        call();
    } catch (...) {
        // No exception may pass through Qt's event loop. That of a dialog that is gone has no receiver.
        m_thrown = m_thrown ? m_thrown : std::current_exception();
        if (m_dialog) {
            m_dialog->reject();
        }
    }
}

bool QtDialogCustomization::refuse(const std::string& reason)
{
    if (!m_dialog || !m_isRunning) {
        return false;
    }
    showWarning(m_dialog, m_dialog->windowTitle(), refusalText(reason));
    return false;
}

} // namespace morvane::ui
