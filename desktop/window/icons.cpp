#include "desktop/window/icons.h"

#include <QApplication>
#include <QFile>
#include <QIconEngine>
#include <QPainter>
#include <QPalette>
#include <QPixmap>
#include <QSvgRenderer>

// Outside of any namespace, as Qt wants it.
static void loadIcons() { Q_INIT_RESOURCE(icons); }

namespace quor::desktop {

namespace {

// What the documents have where the ink of the theme belongs.
constexpr const char* kInk = "#123456";

QByteArray documentOf(const QString& name) {
    static const bool loaded = [] {
        loadIcons();
        return true;
    }();
    QFile file(":/icons/" + name + ".svg");
    return loaded && file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

class ThemedIcon final : public QIconEngine {
public:
    explicit ThemedIcon(QByteArray document) : document_(std::move(document)) {}

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State) override {
        const QPalette palette = QApplication::palette();
        const QPalette::ColorGroup group = mode == QIcon::Disabled ? QPalette::Disabled : QPalette::Active;
        QByteArray inked = document_;
        inked.replace(kInk, palette.color(group, QPalette::WindowText).name().toLatin1());
        QSvgRenderer renderer(inked);
        if (mode == QIcon::Disabled)
            painter->setOpacity(0.45);
        renderer.render(painter, rect);
        painter->setOpacity(1);
    }

    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
        QPixmap picture(size);
        picture.fill(Qt::transparent);
        QPainter painter(&picture);
        paint(&painter, QRect(QPoint(), size), mode, state);
        return picture;
    }

    [[nodiscard]] QIconEngine* clone() const override { return new ThemedIcon(document_); }

private:
    QByteArray document_;
};

} // namespace

QIcon iconOf(const QString& name) {
    QByteArray document = documentOf(name);
    return document.isEmpty() ? QIcon() : QIcon(new ThemedIcon(std::move(document)));
}

QIcon programIcon() { return iconOf("quor"); }

} // namespace quor::desktop
