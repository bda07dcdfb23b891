// A command link of a task dialog: an arrow, the command in bold, its explanation below; the whole of it is the button.
#pragma once

#include <QAbstractButton>

namespace quor::desktop {

class CommandLink final : public QAbstractButton {
    Q_OBJECT

public:
    CommandLink(const QString& text, const QString& explanation, QWidget* parent = nullptr);

    // From 1: the key that chooses it, shown at its right end.
    void setNumber(int number);
    [[nodiscard]] int number() const { return number_; }
    void setRecommended(bool recommended);
    [[nodiscard]] bool isRecommended() const { return recommended_; }
    [[nodiscard]] const QString& explanation() const { return explanation_; }

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override { return sizeHint(); }
    [[nodiscard]] bool hasHeightForWidth() const override { return true; }
    [[nodiscard]] int heightForWidth(int width) const override;

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void enterEvent(QEnterEvent* event) override;
    void leaveEvent(QEvent* event) override;

private:
    // Where its parts stand in a given width.
    struct Places {
        QRect arrow;
        QRect text;
        QRect explanation;
        QRect number;
        int height = 0;
    };
    [[nodiscard]] Places placesIn(int width) const;
    [[nodiscard]] QFont textFont() const;
    void paintFrame(QPainter& painter) const;
    void paintArrow(QPainter& painter, const QRect& place) const;

    QString explanation_;
    int number_ = 0;
    bool recommended_ = false;
};

} // namespace quor::desktop
