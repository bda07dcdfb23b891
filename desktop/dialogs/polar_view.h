// Paints the polar diagram of a photometric web: rings with their intensities, angles, a curve for each plane.
#pragma once

#include "host/ies/polar_curve.h"

#include <QWidget>

namespace quor::desktop {

class PolarView final : public QWidget {
    Q_OBJECT

public:
    explicit PolarView(QWidget* parent = nullptr);

    void show(ies::PolarDiagram diagram);
    [[nodiscard]] const ies::PolarDiagram& diagram() const { return diagram_; }

    [[nodiscard]] QSize sizeHint() const override { return {260, 240}; }
    [[nodiscard]] QSize minimumSizeHint() const override { return {160, 150}; }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    // Where the diagram stands on the widget.
    struct Frame {
        QPointF centre;
        qreal radius = 0; // of the outermost ring
        qreal legend = 0; // where the names of the planes begin
    };
    [[nodiscard]] Frame frame() const;
    void paintRings(QPainter& painter, const Frame& frame) const;
    void paintSpokes(QPainter& painter, const Frame& frame) const;
    void paintCurve(QPainter& painter, const Frame& frame, std::size_t number) const;
    void paintLegend(QPainter& painter, const Frame& frame) const;
    [[nodiscard]] QPen curvePen(std::size_t number) const;

    ies::PolarDiagram diagram_;
};

} // namespace quor::desktop
