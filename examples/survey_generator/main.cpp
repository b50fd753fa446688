// Writes the desk's survey: survey_generator > road_survey.csv

#include <cmath>
#include <cstdio>
#include <string>

#include "RoadGeometry.h"

namespace {

constexpr double kInterval = 2.0;

/// The remarks that belong to the row at a chainage: those nearest to it.
std::string DescriptionAt(const std::vector<road::Feature>& features, double chainage) {
  std::string text;
  for (const road::Feature& feature : features) {
    if (feature.chainage >= chainage - kInterval / 2.0 && feature.chainage < chainage + kInterval / 2.0) {
      text += (text.empty() ? "" : "; ") + feature.description;
    }
  }
  return text;
}

}  // namespace

int main() {
  const auto line = road::CentreLine(kInterval);
  const auto features = road::Features();
  std::puts("Chainage,Easting,Northing,Ground level,Design level,Description");
  for (std::size_t i = 0; i < line.size(); ++i) {
    const double chainage = static_cast<double>(i) * kInterval;
    std::string description = DescriptionAt(features, chainage);
    if (description.find(',') != std::string::npos) {
      description.insert(0, 1, '"').push_back('"');
    }
    std::printf("%.3f,%.3f,%.3f,%.3f,%.3f,%s\n", chainage, line[i].easting, line[i].northing,
                road::GroundLevel(chainage), road::DesignLevel(chainage), description.c_str());
  }
  return 0;
}
