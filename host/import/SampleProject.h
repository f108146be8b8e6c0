#pragma once

namespace schedules::host {

class Project;

/// Fills an empty project with what every plant starts from: the categories, data items and templates of the samples.
/// Throws `HostError` when these are not installed, or not as they should be.
void FillWithStandards(Project& project);

/// Fills an empty project with the sample plant: the standards, and tags of all categories with their values. Throws as
/// `FillWithStandards`.
void FillWithSample(Project& project);

} // namespace schedules::host
