// SPDX-FileCopyrightText: 2026 The RtlVakIns authors
// SPDX-License-Identifier: Apache-2.0

#include "workbench/configurationdialog.h"

#include "hostlibs/ovte/projectengine.h"

#include <OVTE/designmanager.h>
#include <OVTE/taskengine.h>
#include <netcatcher/netcatcher.h>

#include <QComboBox>
#include <QDialogButtonBox>
#include <QDir>
#include <QFileDialog>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRegularExpression>
#include <QVBoxLayout>

namespace Workbench {

static TE::ProjectEngine &engine()
{
    return *TE::ProjectEngine::instance();
}

static QStringList linesOf(const QPlainTextEdit *edit)
{
    QStringList result;
    for (const QString &line : edit->toPlainText().split('\n')) {
        if (!line.trimmed().isEmpty())
            result.append(line.trimmed());
    }
    return result;
}

static QPlainTextEdit *listEdit(const char *name, const QString &placeholder, QWidget *parent)
{
    auto *edit = new QPlainTextEdit(parent);
    edit->setObjectName(name);
    edit->setPlaceholderText(placeholder);
    edit->setTabChangesFocus(true);
    edit->setLineWrapMode(QPlainTextEdit::NoWrap);
    edit->setMinimumHeight(5 * edit->fontMetrics().lineSpacing());
    return edit;
}

/// A form's own labels know their field only where it stands alone in its row.
static QLabel *labelFor(QWidget *field, const QString &text)
{
    auto *label = new QLabel(text, field->parentWidget());
    label->setBuddy(field);
    return label;
}

QString firstWrongDefine(const QStringList &defines)
{
    static const QRegularExpression pattern(R"(^[A-Za-z_][A-Za-z0-9_$]*(=.*)?$)");
    for (const QString &define : defines) {
        if (!pattern.match(define).hasMatch())
            return define;
    }
    return {};
}

ConfigurationDialog::ConfigurationDialog(QWidget *parent)
    : QDialog(parent)
    , m_top(new QComboBox(this))
    , m_find(new QPushButton(tr("&Find Modules"), this))
    , m_found(new QLabel(this))
    , m_includePaths(listEdit("includePaths", tr("One folder a line, relative to the project"), this))
    , m_defines(listEdit("defines", tr("One a line: NAME or NAME=VALUE"), this))
    , m_standard(new QComboBox(this))
    , m_tool(new QComboBox(this))
    , m_problem(new QLabel(this))
{
    setWindowTitle(tr("Configuration"));
    m_top->setObjectName("topModule");
    m_top->setEditable(true);
    m_top->setInsertPolicy(QComboBox::NoInsert);
    m_top->lineEdit()->setPlaceholderText(tr("Found from the design when empty"));
    m_find->setObjectName("findModules");
    m_find->setAutoDefault(false);
    m_found->setObjectName("foundModules");
    m_standard->setObjectName("verilogStandard");
    m_tool->setObjectName("synthesisTool");
    m_problem->setObjectName("problem");
    m_problem->setTextFormat(Qt::PlainText);
    m_problem->setWordWrap(true);
    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    m_ok = buttons->button(QDialogButtonBox::Ok);
    auto *addFolder = new QPushButton(tr("&Add Folder..."), this);
    addFolder->setAutoDefault(false);

    auto *topRow = new QHBoxLayout;
    topRow->addWidget(m_top, 1);
    topRow->addWidget(m_find);
    auto *folderRow = new QHBoxLayout;
    folderRow->addWidget(m_includePaths, 1);
    folderRow->addWidget(addFolder, 0, Qt::AlignTop);
    auto *form = new QFormLayout;
    form->addRow(labelFor(m_top, tr("&Top module:")), topRow);
    form->addRow(QString(), m_found);
    form->addRow(labelFor(m_includePaths, tr("&Include paths:")), folderRow);
    form->addRow(tr("&Defines:"), m_defines);
    form->addRow(tr("&Language standard:"), m_standard);
    form->addRow(tr("&Synthesis tool:"), m_tool);
    auto *layout = new QVBoxLayout(this);
    layout->addLayout(form);
    layout->addWidget(m_problem);
    layout->addWidget(buttons);
    resize(620, 480);
    load();

    connect(m_find, &QPushButton::clicked, this, &ConfigurationDialog::findModules);
    connect(addFolder, &QPushButton::clicked, this, &ConfigurationDialog::addIncludeFolder);
    connect(m_defines, &QPlainTextEdit::textChanged, this, &ConfigurationDialog::check);
    connect(m_tool, qOverload<int>(&QComboBox::currentIndexChanged), this, &ConfigurationDialog::check);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    check();
}

void ConfigurationDialog::load()
{
    const TE::Project &project = engine().project();
    m_top->setEditText(project.topModule);
    m_includePaths->setPlainText(project.includePaths.join('\n'));
    m_defines->setPlainText(project.defines.join('\n'));
    for (const QString &standard : TE::verilogStandards())
        m_standard->addItem(tr("%1 (IEEE %2)").arg(TE::verilogStandardTitle(standard), standard), standard);
    m_standard->setCurrentIndex(m_standard->findData(project.verilogStandard));
    m_tool->addItems(TE::synthesisTools());
    m_tool->setCurrentText(project.synthesisTool);
}

void ConfigurationDialog::findModules()
{
    // The design as this dialog describes it, without a top: then every module is told.
    auto info = TE::TaskEngine::instance()->designManager()->getSourceFileInfo();
    QStringList includePaths;
    for (const QString &path : linesOf(m_includePaths))
        includePaths.append(QDir::cleanPath(QDir(engine().workingDir()).absoluteFilePath(path)));
    info.insert(TE::SourceKey::Top, QString());
    info.insert(TE::SourceKey::IncludePath, includePaths);
    info.insert(TE::SourceKey::Defines, linesOf(m_defines));
    info.insert(TE::SourceKey::Standard, m_standard->currentData());
    QStringList tops;
    QStringList modules;
    QStringList lines;
    NETCATCHER::catchRtlModules(tops, modules, lines, info, this);
    emit messages(lines);

    const QString typed = m_top->currentText();
    QStringList offered = tops;
    modules.sort(Qt::CaseInsensitive);
    offered += modules;
    offered.removeDuplicates();
    m_top->clear();
    m_top->addItems(offered);
    m_top->setEditText(typed.isEmpty() && tops.size() == 1 ? tops.first() : typed);
    m_found->setText(offered.isEmpty()
                         ? tr("No modules found; the messages say why.")
                         : tr("%n module(s) found, those that can be the top first.", nullptr, offered.size()));
}

void ConfigurationDialog::addIncludeFolder()
{
    const QString folder = QFileDialog::getExistingDirectory(this, tr("Include Folder"), engine().workingDir());
    if (!folder.isEmpty())
        m_includePaths->appendPlainText(QDir(engine().workingDir()).relativeFilePath(folder));
}

void ConfigurationDialog::check()
{
    const QString wrong = firstWrongDefine(linesOf(m_defines));
    QString problem;
    if (!wrong.isEmpty())
        problem = tr("The define \"%1\" is neither NAME nor NAME=VALUE.").arg(wrong);
    else if (m_tool->currentText() != TE::synthesisTools().first())
        problem = tr("Analyzer files can not be saved while %1 is the synthesis tool.").arg(m_tool->currentText());
    m_problem->setText(problem);
    m_problem->setStyleSheet(wrong.isEmpty() ? QString() : QString("color: red"));
    m_ok->setEnabled(wrong.isEmpty());
}

void ConfigurationDialog::accept()
{
    const QString top = m_top->currentText();
    const QStringList includePaths = linesOf(m_includePaths);
    const QStringList defines = linesOf(m_defines);
    const QVariant standard = m_standard->currentData();
    const QString tool = m_tool->currentText();
    QDialog::accept();
    // The top comes last: where it changes, what is read then has the other options already.
    engine().setOption(TE::OptionName::IncludePath, includePaths);
    engine().setOption(TE::OptionName::Defines, defines);
    engine().setOption(TE::OptionName::VerilogStandard, standard);
    engine().setOption(TE::OptionName::SynthesizeTool, tool);
    engine().setOption(TE::OptionName::TopModule, top);
}

} // namespace Workbench
