#include "generator/generation.h"

#include "generator/choices.h"
#include "generator/emphasis.h"
#include "generator/fieldvalues.h"
#include "generator/zonepages.h"
#include "generator/zones.h"
#include "site/styles.h"
#include "site/template.h"
#include "site/weblangs.h"

void ResetGeneration() {
    ResetTemplateState(); // with the files
    ResetWebLangs();
    ResetStyles();
    ResetZones();
    ResetChoices();
    ResetEmphasis();
    ResetZonePages();
    ResetActiveFieldDefs();
}
