// Which properties the elements database has, where, and how many elements have a value: one line for each.
// The positions are what the plot, the element summary and users' settings point at. The coverage is exact,
// so that a value that is lost or comes in unnoticed fails a test.
#pragma once

namespace orvane::testing {

struct ExpectedProperty {
  int category;  // index
  int property;  // index in its category
  int id;
  const char* name;
  const char* units;
  bool plottable;
  int values;
};

inline constexpr ExpectedProperty kExpectedProperties[] = {
    // Identification
    {0, 0, 0, "Symbol", "", false, 112},
    {0, 1, 1, "Name", "", false, 112},
    {0, 2, 2, "Atomic mass", " u", true, 112},
    {0, 3, 3, "Family", "", false, 112},
    {0, 4, 4, "Block", "", false, 112},
    // General
    {1, 0, 5, "Group", "", false, 84},
    {1, 1, 6, "Period", "", false, 112},
    {1, 2, 7, "CAS number", "", false, 112},
    {1, 3, 8, "Appearance", "", false, 97},
    {1, 4, 9, "State at 25 °C", "", false, 111},
    {1, 5, 10, "Reference form", "", false, 112},
    {1, 6, 11, "Density", " g/cm³", true, 97},
    {1, 7, 12, "Discovery year", "", true, 101},
    {1, 8, 13, "Discoverer", "", false, 112},
    {1, 9, 14, "Origin of name", "", false, 112},
    // Atomic
    {2, 0, 15, "Atomic number", "", true, 112},
    {2, 1, 16, "Atomic radius", " pm", true, 88},
    {2, 2, 17, "Covalent radius", " pm", true, 96},
    {2, 3, 18, "Van der Waals radius", " pm", true, 103},
    {2, 4, 19, "Ionic radii", " pm", false, 93},
    {2, 5, 20, "First ionization energy", " kJ/mol", true, 103},
    {2, 6, 21, "Second ionization energy", " kJ/mol", true, 93},
    {2, 7, 22, "Third ionization energy", " kJ/mol", true, 88},
    {2, 8, 23, "Electron affinity", " kJ/mol", true, 78},
    {2, 9, 24, "Polarizability", " Å³", true, 99},
    {2, 10, 25, "Metallic radius", " pm", true, 73},
    // Electronic and chemical
    {3, 0, 26, "Electrons per shell", "", false, 112},
    {3, 1, 27, "Oxidation states", "", false, 108},
    {3, 2, 28, "Electronegativity (Pauling)", "", true, 84},
    {3, 3, 29, "Electronegativity (Allen)", "", true, 71},
    {3, 4, 30, "Ground-state term", "", false, 105},
    {3, 5, 31, "Electron configuration", "", false, 112},
    {3, 6, 32, "Standard electrode potential", "", false, 57},
    {3, 7, 33, "Common ions and oxides", "", false, 100},
    // Thermal
    {4, 0, 34, "Melting point", " K", true, 97},
    {4, 1, 35, "Boiling point", " K", true, 90},
    {4, 2, 36, "Heat of fusion", " kJ/mol", true, 95},
    {4, 3, 37, "Heat of vaporization", " kJ/mol", true, 89},
    {4, 4, 38, "Heat of atomization", " kJ/mol", true, 95},
    {4, 5, 39, "Molar heat capacity", " J/(mol·K)", true, 88},
    {4, 6, 40, "Specific heat", " J/(g·K)", true, 88},
    {4, 7, 41, "Thermal conductivity", " W/(m·K)", true, 92},
    {4, 8, 42, "Standard entropy", " J/(mol·K)", true, 87},
    {4, 9, 43, "Thermal expansion", " µm/(m·K)", true, 61},
    {4, 10, 44, "Critical temperature", " K", true, 23},
    {4, 11, 45, "Critical pressure", " MPa", true, 21},
    // Structure and mechanical
    {5, 0, 46, "Crystal structure", "", false, 95},
    {5, 1, 47, "Space group", "", false, 91},
    {5, 2, 48, "Lattice constant a", " pm", true, 89},
    {5, 3, 49, "Lattice constant b", " pm", true, 89},
    {5, 4, 50, "Lattice constant c", " pm", true, 89},
    {5, 5, 51, "Lattice angles", "", false, 88},
    {5, 6, 52, "Molar volume", " cm³/mol", true, 85},
    {5, 7, 53, "Mohs hardness", "", true, 55},
    {5, 8, 54, "Brinell hardness", " MPa", true, 56},
    {5, 9, 55, "Vickers hardness", " MPa", true, 39},
    {5, 10, 56, "Young's modulus", " GPa", true, 61},
    {5, 11, 57, "Shear modulus", " GPa", true, 58},
    {5, 12, 58, "Bulk modulus", " GPa", true, 67},
    {5, 13, 59, "Poisson's ratio", "", true, 54},
    {5, 14, 60, "Speed of sound", " m/s", true, 64},
    // Electrical and optical
    {6, 0, 61, "Electrical resistivity", " nΩ·m", true, 64},
    {6, 1, 62, "Superconducting transition", " K", true, 28},
    {6, 2, 63, "Refractive index (gas)", "", true, 18},
    {6, 3, 64, "Reflectivity", " %", true, 24},
    {6, 4, 65, "X-ray Kα line", " keV", true, 95},
    {6, 5, 66, "X-ray K edge", " keV", true, 99},
    // Nuclear
    {7, 0, 67, "Natural isotopes", "", false, 84},
    {7, 1, 68, "Stable isotopes", "", false, 80},
    {7, 2, 69, "Longest-lived isotope", "", false, 30},
    {7, 3, 70, "Half-life", "", false, 30},
    {7, 4, 71, "Known isotopes", "", true, 112},
    {7, 5, 72, "Neutron absorption", " barn", true, 84},
    // Occurrence and use
    {8, 0, 73, "Abundance in crust", " mg/kg", true, 88},
    {8, 1, 74, "Abundance in sea", " mg/L", true, 80},
    {8, 2, 75, "Sources", "", false, 112},
    {8, 3, 76, "Uses", "", false, 112},
    // Safety
    {9, 0, 77, "Hazard", "", false, 112},
    {9, 1, 78, "Biological role", "", false, 112},
    {9, 2, 79, "Occupational limit", "", false, 42},
    {9, 3, 80, "IARC group", "", false, 25},
};

inline constexpr const char* kExpectedCategories[] = {
    "Identification",
    "General",
    "Atomic",
    "Electronic and chemical",
    "Thermal",
    "Structure and mechanical",
    "Electrical and optical",
    "Nuclear",
    "Occurrence and use",
    "Safety",
};

}  // namespace orvane::testing
