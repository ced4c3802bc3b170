// What one generation has in memory, and its one way back to nothing.
//
// Each part has an owner, who alone writes it; parts are made in the order of the driver's stages
// and live until the next generation, the
// files until they are delivered:
//
//   TemplateHeader, TemplateSections, SectionBodies, ImageSections   site/template
//   OutputFiles                                                      site/outputs
//   WebLangs and the words of the design                             site/weblangs
//   StyleColors                                                      site/styles
//   ZoneCodes, ZoneFragments, ZoneLangList, ZoneLinkBlocks           generator/zones
//   ChoiceBlocks (choice lists and category trees)                   generator/choices
//   EmphasisBlock1, EmphasisBlock2                                   generator/emphasis
//   ZonePageBlock                                                    generator/zonepages
//   ActiveFieldDefs                                                  generator/fieldvalues
#pragma once

// At the beginning of each generation, and of each test of one: every part is as at the start of
// the program, but for WebLangs, which are those of the setting UserLangs.
void ResetGeneration();
