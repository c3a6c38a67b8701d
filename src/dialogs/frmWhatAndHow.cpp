#include "dialogs/frmWhatAndHow.h"

#include "frame/Prompter.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

namespace orvane {
namespace {

QGroupBox* Group(const char* name, const char* title, QWidget* parent) {
    auto* box = new QGroupBox(title, parent);
    box->setObjectName(name);
    new QVBoxLayout(box);
    return box;
}

template <std::size_t N>
void AddOptions(QGroupBox& box, const char* name, const char* const (&texts)[N],
                QRadioButton* (&options)[N]) {
    auto* group = new QButtonGroup(&box);
    for (std::size_t i = 0; i < N; ++i) {
        options[i] = new QRadioButton(texts[i], &box);
        options[i]->setObjectName(QString("%1(%2)").arg(name).arg(i));
        group->addButton(options[i], static_cast<int>(i));
        box.layout()->addWidget(options[i]);
    }
}

} // namespace

frmWhatAndHow::frmWhatAndHow(cViewFileDiffsOptions& options, QWidget* parent)
    : QDialog(parent), options_(options) {
    setObjectName("frmWhatAndHow");
    setWindowTitle("Comparison and Output Options");
    auto* layout = new QVBoxLayout(this);
    QGroupBox* modes = Group("fraComparisonModes", "What do you want to see?", this);
    static const char* const kModes[] = {"Visual Aspect Differences", "Source Code Differences",
                                         "Text Content  Differences"};
    AddOptions(*modes, "optComparisonModes", kModes, optComparisonModes);
    QGroupBox* outputs =
        Group("fraOutputFormats", "How do you want the differences displayed?", this);
    static const char* const kOutputs[] = {"In One Window", "In Two Windows (Side-by-Side)"};
    AddOptions(*outputs, "optOutputFormats", kOutputs, optOutputFormats);
    layout->addWidget(modes);
    layout->addWidget(outputs);
    auto* bottom = new QHBoxLayout;
    chkShowDialogue = new QCheckBox("Show Before Every Comparison", this);
    chkShowDialogue->setObjectName("chkShowDialogue");
    auto* ok = new QPushButton("OK", this);
    ok->setObjectName("OKButton");
    ok->setDefault(true);
    bottom->addWidget(chkShowDialogue);
    bottom->addStretch();
    bottom->addWidget(ok);
    layout->addLayout(bottom);
    for (int i = 0; i < 3; ++i)
        connect(optComparisonModes[i], &QRadioButton::clicked, this,
                [this, i] { optComparisonModes_Click(i); });
    for (int i = 0; i < 2; ++i)
        connect(optOutputFormats[i], &QRadioButton::clicked, this,
                [this, i] { optOutputFormats_Click(i); });
    connect(ok, &QPushButton::clicked, this, &frmWhatAndHow::OKButton_Click);
    Form_Load();
}

void frmWhatAndHow::Form_Load() {
    LoadingOptions = true;
    const cViewFileDiffsOptions& o = options_;
    optComparisonModes[std::clamp(ChoiceIndex(o.ComparisonMode), 0, 2)]->setChecked(true);
    if (o.ComparisonMode != ComparisonMode::Visual) {
        optOutputFormats[std::clamp(ChoiceIndex(o.OutputFormat), 0, 1)]->setChecked(true);
    } else {
        optOutputFormats[0]->setChecked(true);
        optOutputFormats[1]->setEnabled(false);
    }
    chkShowDialogue->setChecked(o.ShowDialogueBeforeComparison);
    LoadingOptions = false;
}

void frmWhatAndHow::optComparisonModes_Click(int index) {
    if (LoadingOptions) return;
    if (ChoiceAt<ComparisonMode>(index) != ComparisonMode::Visual) {
        optOutputFormats[1]->setEnabled(true);
    } else {
        optOutputFormats[0]->setChecked(true);
        optOutputFormats[1]->setEnabled(false);
    }
}

// A second guard: with the choice disabled the mouse cannot get here.
void frmWhatAndHow::optOutputFormats_Click(int index) {
    if (LoadingOptions || index != 1 || !optComparisonModes[0]->isChecked()) return;
    prompter().MsgBox("Visual Aspect Differences cannot be displayed in Side-by-Side view.",
                      MsgIcon::Information, "Visual Aspect");
    optOutputFormats[0]->setChecked(true);
}

void frmWhatAndHow::OKButton_Click() {
    cViewFileDiffsOptions& o = options_;
    for (int i = 0; i < 3; ++i)
        if (optComparisonModes[i]->isChecked()) o.ComparisonMode = ChoiceAt<ComparisonMode>(i);
    for (int i = 0; i < 2; ++i)
        if (optOutputFormats[i]->isChecked()) o.OutputFormat = ChoiceAt<OutputFormat>(i);
    o.ShowDialogueBeforeComparison = chkShowDialogue->isChecked();
    accept();
}

} // namespace orvane
