#include "desktop/CorrectionDialog.h"

#include "desktop/QtPlatform.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QFileDialog>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

namespace iceline::desktop {

namespace {

constexpr int Exhibition = 1; ///< entry of the list of kinds

/// The coach whom a list shows, when it is another than at first.
std::optional<std::optional<std::string>> changedCoach(const QComboBox& list) {
    if (list.currentIndex() == list.property("first").toInt())
        return std::nullopt;
    return list.currentIndex() == 0 ? std::optional<std::string>()
                                    : std::optional(fromQt(list.currentText()));
}

} // namespace

CorrectionDialog::CorrectionDialog(const QString& title, const GameImported& game,
                                   const std::vector<std::string>& coaches, QWidget* parent)
    : QDialog(parent) {
    setObjectName(QStringLiteral("Correction"));
    setWindowTitle(QStringLiteral("Correct Game"));
    auto* form = new QFormLayout(this);
    form->addRow(new QLabel(title, this));
    kind_ = new QComboBox(this);
    kind_->setObjectName(QStringLiteral("Kind"));
    kind_->addItems({QStringLiteral("Season or play-offs"), QStringLiteral("Exhibition")});
    kind_->setCurrentIndex(game.exhibition ? Exhibition : 0);
    kind_->setProperty("first", kind_->currentIndex());
    form->addRow(QStringLiteral("&Kind"), kind_);
    awayCoach_ = addCoaches(*form, "AwayCoach", QStringLiteral("&Away coach"), coaches, game.awayCoach);
    homeCoach_ = addCoaches(*form, "HomeCoach", QStringLiteral("&Home coach"), coaches, game.homeCoach);
    auto* fileCaption = new QLabel(QStringLiteral("&Other save state"), this);
    form->addRow(fileCaption, makeFileChoice());
    fileCaption->setBuddy(file_);
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    buttons->button(QDialogButtonBox::Ok)->setText(QStringLiteral("&Correct"));
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    form->addRow(buttons);
}

QComboBox* CorrectionDialog::addCoaches(QFormLayout& form, const char* name, const QString& caption,
                                        const std::vector<std::string>& coaches,
                                        const std::optional<std::string>& coach) {
    auto* list = new QComboBox(this);
    list->setObjectName(QString::fromLatin1(name));
    list->addItem(QStringLiteral("No Coach"));
    for (const std::string& one : coaches)
        list->addItem(toQt(one));
    if (coach && list->findText(toQt(*coach)) < 0)
        list->addItem(toQt(*coach));
    list->setCurrentIndex(coach ? list->findText(toQt(*coach)) : 0);
    list->setProperty("first", list->currentIndex());
    form.addRow(caption, list);
    return list;
}

QLayout* CorrectionDialog::makeFileChoice() {
    auto* row = new QHBoxLayout;
    file_ = new QLineEdit(this);
    file_->setObjectName(QStringLiteral("File"));
    file_->setPlaceholderText(QStringLiteral("as imported"));
    file_->setMinimumWidth(40 * fontMetrics().averageCharWidth());
    auto* choose = new QPushButton(QStringLiteral("&Browse..."), this);
    connect(choose, &QPushButton::clicked, this, [this] {
        const QString chosen = QFileDialog::getOpenFileName(this, QStringLiteral("Open"));
        if (!chosen.isEmpty())
            file_->setText(chosen);
    });
    row->addWidget(file_, 1);
    row->addWidget(choose);
    return row;
}

Correction CorrectionDialog::correction() const {
    Correction correction;
    if (kind_->currentIndex() != kind_->property("first").toInt())
        correction.exhibition = kind_->currentIndex() == Exhibition;
    correction.homeCoach = changedCoach(*homeCoach_);
    correction.awayCoach = changedCoach(*awayCoach_);
    if (!file_->text().isEmpty())
        correction.file = fromQt(file_->text());
    return correction;
}

} // namespace iceline::desktop
