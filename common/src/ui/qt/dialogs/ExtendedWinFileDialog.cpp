#include "ui/qt/dialogs/ExtendedWinFileDialog.h"

#include "ui/qt/dialogs/native/NativeFileDialog_p.h"
#include "ui/qt/dialogs/shell/TypedNames_p.h"

#include <QFileInfo>

#include <utility>

namespace {

/** The text of the name field for @p file, which may be a list of quoted paths. */
QString nameFieldText(const QString& file)
{
    const QStringList listed = morvane::ui::quotedNames(file);
    if (listed.isEmpty()) {
        return QFileInfo(file).fileName();
    }
    QStringList names;
    for (const QString& path : listed) {
        const QString name = QFileInfo(path).fileName();
        if (!name.isEmpty()) {
            names.append(name);
        }
    }
    const QString blanksBehind = names.size() > 1 ? file.mid(file.lastIndexOf(QLatin1Char('"')) + 1) : QString();
    return names.isEmpty() ? QString() : morvane::ui::typedTextOfNames(names) + blanksBehind;
}

} // namespace

ExtendedWinFileDialog::ExtendedWinFileDialog(QWidget& parent, const std::string& caption, const std::string& directory,
    const std::string& filter, const std::string& helpTopic, QFileDialog::AcceptMode acceptMode, bool useAcceptMenu)
    : ExtendedWinFileDialog(&parent, caption, directory, filter, helpTopic, acceptMode, useAcceptMenu)
{
}

ExtendedWinFileDialog::ExtendedWinFileDialog(QWidget* parent, const std::string& caption, const std::string& directory,
    const std::string& filter, const std::string& helpTopic, QFileDialog::AcceptMode acceptMode, bool useAcceptMenu)
    : m_impl(std::make_unique<Impl>(parent, caption, directory, filter, helpTopic, acceptMode, useAcceptMenu))
{
}

ExtendedWinFileDialog::~ExtendedWinFileDialog() = default;

QDialog::DialogCode ExtendedWinFileDialog::exec()
{
    return m_impl->exec();
}

void ExtendedWinFileDialog::selectFile(const QString& file)
{
    m_impl->m_fileName->setValue(nameFieldText(file).toStdString());
}

QStringList ExtendedWinFileDialog::selectedFiles()
{
    return m_impl->selectedFiles();
}

void ExtendedWinFileDialog::setFileMode(QFileDialog::FileMode mode)
{
    m_impl->m_fileMode = mode;
}

QDir ExtendedWinFileDialog::directory()
{
    return QDir(QString::fromStdString(m_impl->m_directory->value()));
}

void ExtendedWinFileDialog::setDirectory(const QString& dir)
{
    m_impl->m_directory->setValue(dir.toStdString());
}

void ExtendedWinFileDialog::selectNameFilter(const QString& filter)
{
    m_impl->m_currentFilterIndex->setValue(m_impl->m_nameFilters.indexOf(filter) + 1);
}

QStringList ExtendedWinFileDialog::nameFilters()
{
    return m_impl->m_nameFilters;
}

void ExtendedWinFileDialog::setNameFilters(const QStringList& filters)
{
    m_impl->m_nameFilters = filters;
}

QString ExtendedWinFileDialog::selectedNameFilter()
{
    return m_impl->currentNameFilter();
}

QWidget* ExtendedWinFileDialog::addCustomButton(const std::string& text, boost::function<void()> action)
{
    return m_impl->addCustomButton(text, std::move(action), false);
}

QWidget* ExtendedWinFileDialog::addCustomCheckBox(
    const std::string& text, boost::shared_ptr<morvane::PropertyAbstract<bool>> checked)
{
    return m_impl->addCustomCheckBox(text, std::move(checked));
}

QWidget* ExtendedWinFileDialog::addAcceptButtonOption(const std::string& text, int value)
{
    return m_impl->addAcceptButtonOption(text, value);
}

void ExtendedWinFileDialog::clearAcceptMenuOptions()
{
    m_impl->clearAcceptMenuOptions();
}

int ExtendedWinFileDialog::selectedAcceptMenuOption() const
{
    return m_impl->m_selectedAcceptMenuOption;
}

boost::shared_ptr<morvane::PropertyAbstract<int>> ExtendedWinFileDialog::currentFilterIndex()
{
    return m_impl->m_currentFilterIndex;
}

void ExtendedWinFileDialog::setDontConfirmOverwrite(bool on)
{
    m_impl->m_dontConfirmOverwrite = on;
}

void ExtendedWinFileDialog::setShowDirectoriesOnly(bool) {}

QWidget* ExtendedWinFileDialog::parent()
{
    return m_impl->m_parent;
}

void ExtendedWinFileDialog::close()
{
    m_impl->close();
}
