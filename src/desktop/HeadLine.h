#pragma once

#include <QLabel>

#include <vector>

namespace iceline::desktop {

/// One line of heads over several tables. Its text holds all heads, two blanks or more apart, and each is
/// drawn over a column of its own.
class HeadLine : public QLabel {
    Q_OBJECT

public:
    HeadLine(const char* objectName, const QString& heads, QWidget* parent);

    /// Puts a head over each of these labels, from left to right, aligned as the label is.
    void setColumns(const std::vector<QLabel*>& columns) { columns_ = columns; }

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    std::vector<QLabel*> columns_;
};

} // namespace iceline::desktop
