// The pages of the manual that screens open, by their ids in "help.dat". The sources of the pages, in
// content/help, say which is which; a test holds every id here to a page there.
#pragma once

namespace orvane {

inline constexpr int kHelpWelcome = 0;
inline constexpr int kHelpFind = 1100;
inline constexpr int kHelpSeries = 1200;
inline constexpr int kHelpConstants = 1300;
inline constexpr int kHelpConstantsColumns = 1340;
inline constexpr int kHelpElement = 1400;
inline constexpr int kHelpMass = 2100;
inline constexpr int kHelpBalancer = 2200;
inline constexpr int kHelpPlot = 2300;
inline constexpr int kHelpAxisSetup = 2320;

// All of them, for the tests.
inline constexpr int kHelpPages[] = {
    kHelpWelcome, kHelpFind, kHelpSeries,   kHelpConstants, kHelpConstantsColumns,
    kHelpElement, kHelpMass, kHelpBalancer, kHelpPlot,      kHelpAxisSetup};

}  // namespace orvane
