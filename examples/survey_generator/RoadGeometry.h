#pragma once

#include <string>
#include <vector>

/// The road that the desk's survey measures: a made-up rural road of 12.4 km, stated as an engineer would
/// set it out, so that every row of the survey can be recomputed by hand.
namespace road {

/// A position in metres of the local grid; the bearing is clockwise from north, in radians.
struct PlanPoint {
  double easting = 0.0;
  double northing = 0.0;
  double bearing = 0.0;
};

/// One element of the alignment in plan: curvature changes linearly from start to end (1/m, positive to the
/// right), so that a straight has 0 and 0, an arc twice 1/R and a transition spiral one of each.
struct PlanElement {
  double length = 0.0;
  double startCurvature = 0.0;
  double endCurvature = 0.0;
  const char* name = "";
};

/// A point of vertical intersection: the gradients meet at `level` and a parabola of `curveLength` metres,
/// half on either side, rounds the corner.
struct VerticalIntersection {
  double chainage = 0.0;
  double level = 0.0;
  double curveLength = 0.0;
};

/// Something worth a remark at a chainage.
struct Feature {
  double chainage = 0.0;
  std::string description;
};

const std::vector<PlanElement>& PlanElements();
const std::vector<VerticalIntersection>& VerticalIntersections();

/// Length of the road in metres.
double Length();
/// The centre line at increasing chainages from 0, `interval` metres apart, the end included.
std::vector<PlanPoint> CentreLine(double interval);
/// Level of the finished road at a chainage, in metres.
double DesignLevel(double chainage);
/// Level of the ground before the road was built, in metres: valley, hills, banks and the roughness that a
/// levelling rod feels.
double GroundLevel(double chainage);
/// The remarks, by chainage.
std::vector<Feature> Features();

}  // namespace road
