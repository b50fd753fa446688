#include "RoadGeometry.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cstdio>

namespace road {

namespace {

constexpr double kStartEasting = 4512.300;
constexpr double kStartNorthing = 7804.650;
constexpr double kStartBearingDegrees = 62.5;
constexpr double kPi = 3.14159265358979323846;

/// A smooth hump of unit height, `width` metres from its middle to where it has all but gone.
double Hump(double chainage, double middle, double width) {
  const double distance = (chainage - middle) / width;
  return std::exp(-4.0 * distance * distance);
}

/// The same small disturbance for the same centimetre on every machine, between -1 and 1.
double Roughness(double chainage) {
  auto bits = static_cast<std::uint64_t>(std::llround(chainage * 100.0)) * 0x9E3779B97F4A7C15ULL;
  bits ^= bits >> 29U;
  bits *= 0xBF58476D1CE4E5B9ULL;
  bits ^= bits >> 32U;
  return static_cast<double>(bits & 0xFFFFFU) / static_cast<double>(0x7FFFFU) - 1.0;
}

std::string Text(const char* format, double value) {
  char buffer[80];
  std::snprintf(buffer, sizeof buffer, format, value);
  return buffer;
}

}  // namespace

const std::vector<PlanElement>& PlanElements() {
  static const std::vector<PlanElement> elements = {
      {820.0, 0.0, 0.0, "straight"},
      {90.0, 0.0, 1.0 / 450.0, "spiral A 201.2"},
      {610.0, 1.0 / 450.0, 1.0 / 450.0, "arc R 450 right"},
      {90.0, 1.0 / 450.0, 0.0, "spiral A 201.2"},
      {1340.0, 0.0, 0.0, "straight"},
      {120.0, 0.0, -1.0 / 720.0, "spiral A 293.9"},
      {980.0, -1.0 / 720.0, -1.0 / 720.0, "arc R 720 left"},
      {120.0, -1.0 / 720.0, 0.0, "spiral A 293.9"},
      {2150.0, 0.0, 0.0, "straight"},
      {80.0, 0.0, -1.0 / 320.0, "spiral A 160.0"},
      {340.0, -1.0 / 320.0, -1.0 / 320.0, "arc R 320 left"},
      {80.0, -1.0 / 320.0, 0.0, "spiral A 160.0"},
      {60.0, 0.0, 0.0, "straight"},
      {80.0, 0.0, 1.0 / 320.0, "spiral A 160.0"},
      {410.0, 1.0 / 320.0, 1.0 / 320.0, "arc R 320 right"},
      {80.0, 1.0 / 320.0, 0.0, "spiral A 160.0"},
      {1890.0, 0.0, 0.0, "straight"},
      {150.0, 0.0, 1.0 / 1200.0, "spiral A 424.3"},
      {1460.0, 1.0 / 1200.0, 1.0 / 1200.0, "arc R 1200 right"},
      {150.0, 1.0 / 1200.0, 0.0, "spiral A 424.3"},
      {1300.0, 0.0, 0.0, "straight"},
  };
  return elements;
}

const std::vector<VerticalIntersection>& VerticalIntersections() {
  static const std::vector<VerticalIntersection> points = {
      {0.0, 214.350, 0.0},       {640.0, 221.800, 180.0},   {1780.0, 203.100, 320.0},
      {2900.0, 232.500, 400.0},  {4350.0, 219.750, 260.0},  {5600.0, 246.900, 420.0},
      {6480.0, 240.200, 160.0},  {7700.0, 188.400, 380.0},  {8900.0, 193.650, 240.0},
      {10250.0, 229.300, 440.0}, {11500.0, 224.100, 200.0}, {12400.0, 236.850, 0.0},
  };
  return points;
}

double Length() {
  return VerticalIntersections().back().chainage;
}

std::vector<PlanPoint> CentreLine(double interval) {
  // Integrated with the midpoint rule in steps of a centimetre at most: below a tenth of a millimetre over
  // the road.
  std::vector<PlanPoint> line;
  const int steps = static_cast<int>(std::lround(interval / 0.01));
  const double step = interval / steps;
  PlanPoint at{kStartEasting, kStartNorthing, kStartBearingDegrees * kPi / 180.0};
  auto element = PlanElements().begin();
  double elementStart = 0.0;
  double chainage = 0.0;
  const int count = static_cast<int>(std::lround(Length() / interval));
  line.push_back(at);
  for (int i = 0; i < count; ++i) {
    for (int k = 0; k < steps; ++k) {
      const double middle = chainage + step / 2.0;
      while (middle > elementStart + element->length && element + 1 != PlanElements().end()) {
        elementStart += element->length;
        ++element;
      }
      const double share = (middle - elementStart) / element->length;
      const double curvature =
          element->startCurvature + (element->endCurvature - element->startCurvature) * share;
      const double bearing = at.bearing + curvature * step / 2.0;
      at.easting += std::sin(bearing) * step;
      at.northing += std::cos(bearing) * step;
      at.bearing += curvature * step;
      chainage = i * interval + (k + 1) * step;
    }
    line.push_back(at);
  }
  return line;
}

double DesignLevel(double chainage) {
  const auto& points = VerticalIntersections();
  const auto gradient = [&points](std::size_t i) {
    return (points[i + 1].level - points[i].level) / (points[i + 1].chainage - points[i].chainage);
  };
  std::size_t segment = 0;
  while (segment + 2 < points.size() && chainage > points[segment + 1].chainage) {
    ++segment;
  }
  const double level = points[segment].level + gradient(segment) * (chainage - points[segment].chainage);
  for (const std::size_t at : {segment, segment + 1}) {
    const double half = points[at].curveLength / 2.0;
    const double distance = std::abs(chainage - points[at].chainage);
    if (half > 0.0 && distance < half) {
      const double change = gradient(at) - gradient(at - 1);
      return level + change * (half - distance) * (half - distance) / (4.0 * half);
    }
  }
  return level;
}

double GroundLevel(double chainage) {
  double level = DesignLevel(chainage);
  level += 3.2 * std::sin(2.0 * kPi * chainage / 2730.0 + 0.6) + 1.4 * std::sin(2.0 * kPi * chainage / 611.0);
  level += 0.35 * std::sin(2.0 * kPi * chainage / 83.0) + 0.08 * std::sin(2.0 * kPi * chainage / 17.0);
  level -= 9.5 * Hump(chainage, 3265.0, 150.0);   // the brook valley that the bridge crosses
  level += 11.0 * Hump(chainage, 5610.0, 380.0);  // the ridge of the deep cutting
  level -= 4.5 * Hump(chainage, 7640.0, 220.0);
  return level + 0.018 * Roughness(chainage);
}

std::vector<Feature> Features() {
  std::vector<Feature> features = {
      {0.0, "Start of survey, nail in kerb"},
      {412.0, "Culvert DN 800, invert 1.85 below road"},
      {1266.0, "Farm access left"},
      {1802.0, "Culvert DN 1200, headwall left"},
      {3178.0, "Bridge abutment west, pad level"},
      {3266.0, "Brook, water level of the day"},
      {3352.0, "Bridge abutment east, pad level"},
      {4404.0, "Junction with road to the quarry"},
      {5520.0, "Cutting, rock exposed at the toe"},
      {5690.0, "Cutting, spring at the toe; drain needed"},
      {6482.0, "Overhead line 110 kV, clearance 9.4"},
      {7704.0, "Culvert 2 x DN 1000"},
      {8898.0, "Level crossing, rail 1"},
      {9730.0, "Bus bay right, start"},
      {9768.0, "Bus bay right, end"},
      {11036.0, "Retaining wall right, start"},
      {11188.0, "Retaining wall right, end"},
      {Length(), "End of survey, bolt in bridge wing"},
  };
  double chainage = 0.0;
  for (const PlanElement& element : PlanElements()) {
    if (chainage > 0.0) {
      features.push_back({chainage, std::string("Alignment: start of ") + element.name});
    }
    chainage += element.length;
  }
  for (const VerticalIntersection& point : VerticalIntersections()) {
    if (point.curveLength > 0.0) {
      features.push_back(
          {point.chainage, Text("Vertical intersection, curve length %.0f", point.curveLength)});
    }
  }
  for (double at = 1000.0; at < Length(); at += 1000.0) {
    features.push_back({at, Text("Kilometre post %.0f", at / 1000.0)});
  }
  std::stable_sort(features.begin(), features.end(),
                   [](const Feature& a, const Feature& b) { return a.chainage < b.chainage; });
  return features;
}

}  // namespace road
