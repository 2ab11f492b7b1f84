#pragma once

/// Words in the first of the person's languages that there is a translation for, with Qt's own words and
/// the direction of its script. English needs none, and what comes after it is not asked for.
void loadTranslations();
