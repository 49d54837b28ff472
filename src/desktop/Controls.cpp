#include "desktop/Controls.h"

#include "desktop/Pictures.h"
#include "desktop/QtPlatform.h"

#include <QComboBox>
#include <QGroupBox>
#include <QStyle>

#include <stdexcept>

namespace iceline::desktop {

namespace {

QLabel* label(const QString& objectName, const char* role, Qt::Alignment alignment, QWidget* parent) {
    auto* made = new QLabel(parent);
    made->setObjectName(objectName);
    made->setTextFormat(Qt::PlainText);
    made->setProperty("role", QLatin1String(role));
    made->setAlignment(alignment);
    return made;
}

std::out_of_range noLabel(std::string_view name) {
    return std::out_of_range("the window has no label '" + std::string(name) + "'");
}

} // namespace

QString element(const char* name, int index) {
    return QStringLiteral("%1(%2)").arg(QLatin1String(name)).arg(index);
}

QLabel* headLabel(const QString& text, QWidget* parent, Qt::Alignment alignment) {
    QLabel* made = label({}, "head", alignment, parent);
    made->setText(text);
    return made;
}

QLabel* figureLabel(const QString& objectName, QWidget* parent) {
    return label(objectName, "figure", Qt::AlignRight | Qt::AlignVCenter, parent);
}

QLabel* textLabel(const QString& objectName, QWidget* parent) {
    return label(objectName, "figure", Qt::AlignLeft | Qt::AlignVCenter, parent);
}

QLabel* pictureLabel(const QString& objectName, QWidget* parent) {
    return label(objectName, "picture", Qt::AlignCenter, parent);
}

void setStyleProperty(QWidget* widget, const char* name, const QVariant& value) {
    if (widget->property(name) == value)
        return;
    widget->setProperty(name, value);
    widget->style()->unpolish(widget);
    widget->style()->polish(widget);
}

void showTeamBanner(QLabel* label, TeamIndex team, int height) {
    label->setPixmap(pictures::atMost(height, pictures::teamNameMini(team)));
    const QString name = team == BlankTeam ? QString() : toQt(TeamName[team]);
    label->setToolTip(name);
    label->setAccessibleName(name);
}

QGroupBox* frame(const char* objectName, const QString& caption, QWidget* parent) {
    auto* made = new QGroupBox(caption, parent);
    made->setObjectName(QLatin1String(objectName));
    return made;
}

QComboBox* choiceList(const char* objectName, const QString& prompt, QWidget* parent) {
    auto* list = new QComboBox(parent);
    list->setObjectName(QLatin1String(objectName));
    list->setPlaceholderText(prompt);
    list->setSizeAdjustPolicy(QComboBox::AdjustToContents);
    list->setMinimumContentsLength(static_cast<int>(prompt.size()));
    return list;
}

QComboBox* teamList(const char* objectName, const QString& prompt, QWidget* parent) {
    QComboBox* list = choiceList(objectName, prompt, parent);
    for (const TeamIndex team : AllLeagueTeams)
        list->addItem(toQt(TeamName[team]));
    list->setCurrentIndex(-1);
    return list;
}

QPushButton* exitButton(const char* objectName, QWidget* window) {
    auto* button = new QPushButton(QStringLiteral("Exit"), window);
    button->setObjectName(QLatin1String(objectName));
    QObject::connect(button, &QPushButton::clicked, window, &QWidget::close);
    return button;
}

SortHead::SortHead(const QString& objectName, const QString& caption, QWidget* parent)
    : QPushButton(caption, parent), caption_(caption) {
    setObjectName(objectName);
    setProperty("role", QStringLiteral("sortHead"));
    setCursor(Qt::PointingHandCursor);
}

void SortHead::mark(SortMark mark) {
    static const QString Words[] = {QString(), QStringLiteral("descending"), QStringLiteral("ascending")};
    static const QString Arrows[] = {QString(), QStringLiteral(" \u25be"), QStringLiteral(" \u25b4")};
    const auto index = static_cast<std::size_t>(mark);
    setText(caption_ + Arrows[index]);
    setStyleProperty(this, "sort", Words[index]);
}

void setText(const std::vector<QLabel*>& labels, std::size_t row, std::string_view text) {
    labels.at(row)->setText(toQt(text));
}

QLabel* NamedLabels::add(QLabel* label) {
    labels_[fromQt(label->objectName())] = label;
    return label;
}

QLabel& NamedLabels::operator[](std::string_view name) const {
    const auto found = labels_.find(name);
    if (found == labels_.end())
        throw noLabel(name);
    return *found->second;
}

void setText(const NamedLabels& labels, std::string_view name, std::string_view text) {
    labels[name].setText(toQt(text));
}

} // namespace iceline::desktop
