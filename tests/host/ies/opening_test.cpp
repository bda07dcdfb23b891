// The shape of the luminous opening as each edition has it.
#include "host/ies/opening.h"

#include <gtest/gtest.h>

#include <ostream>

namespace quor::ies {
namespace {

using Shape = OpeningShape;

struct Given {
    Edition edition;
    double width;
    double length;
    double height;
    Shape shape;
    std::vector<double> sizes;
    friend void PrintTo(const Given& given, std::ostream* out) {
        *out << static_cast<int>(given.edition) << ": " << given.width << ' ' << given.length << ' ' << given.height;
    }
};

class OpeningOf : public testing::TestWithParam<Given> {};

TEST_P(OpeningOf, HasItsShapeAndSizes) {
    PhotometricWeb web;
    web.edition = GetParam().edition;
    web.width = GetParam().width;
    web.length = GetParam().length;
    web.height = GetParam().height;

    const Opening opening = openingOf(web);

    EXPECT_EQ(opening.shape, GetParam().shape);
    EXPECT_EQ(opening.sizes, GetParam().sizes);
}

constexpr auto k1986 = Edition::Lm1986;
constexpr auto k1991 = Edition::Lm1991;
constexpr auto k1995 = Edition::Lm1995;
constexpr auto k2002 = Edition::Lm2002;
constexpr auto k2019 = Edition::Lm2019;

INSTANTIATE_TEST_SUITE_P(
    OfEveryEdition, OpeningOf,
    testing::Values(Given{k1986, 0, 0, 0, Shape::Point, {}}, Given{k1995, 0, 0, 0, Shape::Point, {}},
                    Given{k2019, 0, 0, 0, Shape::Point, {}}, Given{k1991, 1, 2, 0, Shape::Rectangle, {1, 2}},
                    Given{k2002, 1, 2, 0, Shape::Rectangle, {1, 2}}, Given{k1995, 1, 2, 3, Shape::Box, {1, 2, 3}},
                    Given{k2002, 1, 0, 0, Shape::Unknown, {1, 0, 0}},
                    Given{k2002, 0, 0, 1, Shape::Unknown, {0, 0, 1}}));
INSTANTIATE_TEST_SUITE_P(Of1986And1991, OpeningOf,
                         testing::Values(Given{k1986, -1, 0, 0, Shape::Disc, {1}},
                                         Given{k1991, -1, 0, 2, Shape::Cylinder, {1, 2}},
                                         Given{k1991, -1, 2, 0, Shape::Ellipse, {1, 2}},
                                         Given{k1986, -1, 2, 3, Shape::Ellipsoid, {1, 2, 3}},
                                         Given{k1986, -1, -1, 0, Shape::Unknown, {-1, -1, 0}}));
INSTANTIATE_TEST_SUITE_P(Of1995, OpeningOf,
                         testing::Values(Given{k1995, -1, 0, 0, Shape::Disc, {1}},
                                         Given{k1995, -1, 0, 2, Shape::Cylinder, {1, 2}},
                                         Given{k1995, -1, 0, -1, Shape::Sphere, {1}},
                                         Given{k1995, -1, 0, -2, Shape::Unknown, {-1, 0, -2}},
                                         Given{k1995, 0, 3, -1, Shape::CylinderAlong, {1, 3}},
                                         Given{k1995, 3, 0, -1, Shape::CylinderAcross, {1, 3}}));
INSTANTIATE_TEST_SUITE_P(From2002On, OpeningOf,
                         testing::Values(Given{k2002, -1, -1, 0, Shape::Disc, {1}},
                                         Given{k2002, -1, -2, 0, Shape::Ellipse, {1, 2}},
                                         Given{k2019, -1, -1, 2, Shape::Cylinder, {1, 2}},
                                         Given{k2002, -1, -2, 3, Shape::EllipticalCylinder, {1, 2, 3}},
                                         Given{k2002, -1, -1, -1, Shape::Sphere, {1}},
                                         Given{k2002, -1, -2, -1, Shape::Ellipsoid, {1, 2, 1}},
                                         Given{k2002, -1, 3, -1, Shape::CylinderAlong, {1, 3}},
                                         Given{k2002, 3, -1, -1, Shape::CylinderAcross, {1, 3}},
                                         Given{k2019, -1, 0, -1, Shape::UprightDisc, {1}},
                                         Given{k2002, -1, 0, -2, Shape::Unknown, {-1, 0, -2}},
                                         Given{k2002, -1, 0, 0, Shape::Unknown, {-1, 0, 0}}));

} // namespace
} // namespace quor::ies
