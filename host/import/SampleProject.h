#pragma once

#include <QString>

#include <functional>
#include <memory>

namespace schedules::host {

class Project;

/// Fills an empty project with what every plant starts from: the categories, data items and templates of the samples.
/// Throws `HostError` when these are not installed, or not as they should be.
void FillWithStandards(Project& project);

/// Fills an empty project with the sample plant: the standards, and tags of all categories with their values. Throws as
/// `FillWithStandards`.
void FillWithSample(Project& project);

/// Makes a project and fills it. A file that could not be filled is not left behind. Throws `HostError`.
std::unique_ptr<Project> NewProject(const QString& address, const std::function<void(Project&)>& fill);

} // namespace schedules::host
