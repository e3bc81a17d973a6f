#include "checks/section_structure.h"

#include <algorithm>
#include <exception>
#include <string_view>
#include <unordered_map>
#include <unordered_set>
#include <vector>

#include "base/text.h"
#include "checks/run_context.h"
#include "checks/title_lines.h"
#include "las/lines.h"
#include "las/sections.h"

namespace zorvik {
namespace {

// What the items need of one title: the text as written (without the tilde), its section name
// (the title without its [n] index), its index, its association and its role.
struct Title {
  std::string text;
  std::string name;
  int index = -1;
  std::string association;
  SectionRole role = SectionRole::Other;
  std::int64_t position = 0;  // of the title line
};

std::vector<Title> titlesOf(const std::vector<SectionEntry>& sections) {
  std::vector<Title> titles;
  titles.reserve(sections.size());
  for (const SectionEntry& s : sections) {
    Title t;
    t.text = s.name;
    t.position = s.titleStart;
    int index = -1;
    t.name = splitArrayIndex(s.name, index);
    t.index = s.arrayIndex;
    t.association = s.association;
    t.role = s.role;
    titles.push_back(std::move(t));
  }
  return titles;
}

// The title cut before its first "_" and then before its first "[": "Log" for Log_Data[2].
std::string_view baseName(std::string_view title) {
  title = title.substr(0, title.find('_'));
  return title.substr(0, title.find('['));
}

// The text up to and including the first "_".
std::string_view upToUnderscore(std::string_view s) {
  return s.substr(0, s.find('_') + 1);
}

bool isOneOf(std::string_view s, std::initializer_list<std::string_view> words) {
  for (std::string_view w : words)
    if (iequals(s, w)) return true;
  return false;
}

bool containsAnyOf(std::string_view s, std::initializer_list<std::string_view> words) {
  for (std::string_view w : words)
    if (icontains(s, w)) return true;
  return false;
}

// Lists a title unless it is listed already. Whole titles are compared (ignoring case), so a
// title is never hidden by a longer one that contains it.
void appendOnce(RowResult& slot, std::unordered_set<std::string>& listed, const Title& title) {
  if (listed.insert(toUpper(title.text)).second)
    slot.add(closedFinding(title.text, title.position));
}

// Names are compared ignoring case, so upper-cased texts serve as keys. Each rule below compares
// every title with every other one; keyed counts give the same answers without the square cost,
// so a file of thousands of sections is judged as quickly as one of ten.
using Counts = std::unordered_map<std::string, int>;

// Place in the list of the first title of each text.
std::unordered_map<std::string, int> firstPlaces(const std::vector<Title>& titles) {
  std::unordered_map<std::string, int> places;
  for (std::size_t i = 0; i < titles.size(); ++i)
    places.emplace(toUpper(titles[i].text), static_cast<int>(i));
  return places;
}

// -1 when no title equals `text`, else the place of the first that does.
int positionOf(const std::unordered_map<std::string, int>& places, std::string_view text) {
  const auto it = places.find(toUpper(text));
  return it == places.end() ? -1 : it->second;
}

// Titles sharing a key, each class in list order, the classes in the order their first members
// are met. `key` gives false for a title that takes no part.
template <typename Key>
std::vector<std::vector<std::size_t>> classesOf(const std::vector<Title>& titles, Key key) {
  std::vector<std::vector<std::size_t>> classes;
  std::unordered_map<std::string, std::size_t> classOf;
  for (std::size_t i = 0; i < titles.size(); ++i) {
    std::string k;
    if (!key(titles[i], k)) continue;
    const auto [it, added] = classOf.emplace(std::move(k), classes.size());
    if (added) classes.emplace_back();
    classes[it->second].push_back(i);
  }
  return classes;
}

// The second titles of the pairs (i, j), i != j, of one class, in the order in which a walk over
// every i, and for each over every j, first meets them: the first member of a class meets all
// the others, and the second member then meets the first.
std::vector<std::size_t> pairedInWalkOrder(const std::vector<std::vector<std::size_t>>& classes,
                                           std::size_t count) {
  std::vector<const std::vector<std::size_t>*> firstOf(count, nullptr), secondOf(count, nullptr);
  for (const auto& c : classes) {
    if (c.size() < 2) continue;
    firstOf[c[0]] = &c;
    secondOf[c[1]] = &c;
  }
  std::vector<std::size_t> order;
  for (std::size_t i = 0; i < count; ++i) {
    if (firstOf[i]) order.insert(order.end(), firstOf[i]->begin() + 1, firstOf[i]->end());
    if (secondOf[i]) order.push_back((*secondOf[i])[0]);
  }
  return order;
}

void minimumSections2(const std::vector<Title>& titles, RowResult& row) {
  std::string slot;
  bool version = false, well = false, curve = false, ascii = false;
  for (const Title& t : titles) {
    version = version || isOneOf(t.name, {"Version", "V"});
    well = well || isOneOf(t.name, {"Well", "W"});
    curve = curve || isOneOf(t.name, {"Curve", "C"});
    ascii = ascii || isOneOf(t.name, {"ASCII", "A"});
    if (version && well && curve && ascii) break;
  }
  slot.clear();
  if (!well) slot += "~Well ";
  if (!version) slot += "~Version ";
  if (!curve) slot += "~Curve ";
  if (!ascii) slot += "~ASCII ";
  if (!slot.empty()) slot.insert(0, " sections missing are : ");
  row = RowResult::saying(slot);
}

// A _data title and a _Definition title form a set when their suffixes start at the same place:
// the data title's prefix is compared with as many of its own characters as stand before
// "_Definition" in the other title, and the two agree only when the suffixes line up.
bool hasMatchingSetPair(const std::vector<Title>& titles) {
  std::unordered_set<std::size_t> definitionPlaces;
  for (const Title& t : titles)
    if (const std::size_t p = ifind(t.text, "_Definition"); p != std::string::npos)
      definitionPlaces.insert(p);
  // One title cannot hold both suffixes at one place, so a match is always a pair of titles.
  for (const Title& t : titles)
    if (const std::size_t p = ifind(t.text, "_data");
        p != std::string::npos && definitionPlaces.count(p))
      return true;
  return false;
}

void minimumSections3(const std::vector<Title>& titles, const SectionIndex& sections,
                      RowResult& row) {
  std::string slot;
  bool version = false, well = false, definition = false, data = false;
  for (const Title& t : titles) {
    version = version || iequals(t.name, "Version");
    well = well || iequals(t.name, "Well");
    definition = definition || (!sections.curveName.empty() && iequals(t.text, sections.curveName));
    data = data || (!sections.dataName.empty() && iequals(t.text, sections.dataName));
    if (version && well && definition && data) break;
  }
  slot.clear();
  // A file missing both reports only ~Well: the second finding takes the place of the first.
  if (!version) slot = "~Version ";
  if (!well) slot = "~Well";
  if (!definition && !data && !hasMatchingSetPair(titles))
    slot += "Minumum one set of Matching _Data/_Definition sections not found";
  row = RowResult::saying(slot);
}

void recognisedNames(const std::vector<Title>& titles, RowResult& slot) {
  slot.clear();
  for (const Title& t : titles) {
    if (isOneOf(t.name, {"Well", "Version", "Parameter", "Curve", "ASCII"})) continue;
    if (containsAnyOf(t.name, {"_Definition", "_Data", "_Parameter"})) continue;
    // The title as written tells the user which line to look at, index and all (a title whose
    // index cannot be read has no name at all).
    slot.add(closedFinding("Illegal section is ~" + t.text, t.position));
  }
}

void firstAndSecond(const std::vector<Title>& titles, RowResult& slot) {
  slot.clear();
  if (titles.size() < 2) return;
  if (!iequals(titles[0].text, "Version") || !iequals(titles[1].text, "Well"))
    slot = RowResult::saying("1st and 2nd sections are ~" + titles[0].text + " then ~" +
                             titles[1].text);
}

// Titles whose index could not be read have no section name; item 2 reports them, and they are
// kept out of the comparisons by name so that they do not pair up with each other.
// Two titles of one name are duplicates when both lack an index or carry the same one; a second
// ~Version or ~Well is a duplicate whatever its index.
void duplicates3(const std::vector<Title>& titles, RowResult& slot) {
  slot.clear();
  const auto classes = classesOf(titles, [](const Title& t, std::string& key) {
    if (t.name.empty()) return false;
    key = toUpper(t.name);
    if (!isOneOf(t.name, {"Version", "Well"})) key += "[" + toText(t.index) + "]";
    return true;
  });
  std::unordered_set<std::string> listed;
  for (std::size_t j : pairedInWalkOrder(classes, titles.size()))
    appendOnce(slot, listed, titles[j]);
}

// Older files tell their sections apart by the first letter of the title.
void duplicates2(const std::vector<Title>& titles, RowResult& slot) {
  const auto classes = classesOf(titles, [](const Title& t, std::string& key) {
    if (t.text.empty()) return false;
    key = std::string(1, toUpperAscii(t.text[0]));
    return true;
  });
  std::string list;
  std::unordered_set<std::string> listed;
  for (std::size_t j : pairedInWalkOrder(classes, titles.size())) {
    if (!listed.insert(toUpper(titles[j].text)).second) continue;
    if (!list.empty()) list += ", ";
    list += titles[j].text;
  }
  slot = RowResult::saying(list.empty() ? std::string() : "Duplicate section titles : " + list);
}

void dataTitleDelimiter(const std::vector<Title>& titles, RowResult& slot) {
  slot.clear();
  for (const Title& t : titles) {
    if (t.role != SectionRole::Data || iequals(t.text, "ASCII")) continue;
    if (t.association.empty() || t.association == " ") slot.add(closedFinding(t.text, t.position));
  }
}

void matchingAssociation(const std::vector<Title>& titles, RowResult& slot) {
  slot.clear();
  for (const Title& t : titles) {
    if (t.role != SectionRole::Data) continue;
    if (iequals(t.text, "ASCII")) {
      if (!t.association.empty() && !iequals(t.association, "Curve"))
        slot.add(closedFinding(
            "Associated Column definition section must be Curve, not " + t.association,
            t.position));
    } else if (contains(t.text, '_') && contains(t.association, '_')) {
      if (!iequals(upToUnderscore(t.text), upToUnderscore(t.association))) {
        slot.add(closedFinding(t.text, t.position));
        return;
      }
    } else {
      slot.add(closedFinding(t.text, t.position));
    }
  }
}

void definitionSuffix(const std::vector<Title>& titles, RowResult& slot) {
  slot.clear();
  for (const Title& t : titles) {
    if (icontains(t.text, "_DATA") && !icontains(t.association, "_Definition"))
      slot.add(closedFinding(t.text + "|" + t.association, t.position));
  }
}

void definitionExists(const std::vector<Title>& titles, RowResult& slot) {
  slot.clear();
  Counts texts;
  for (const Title& t : titles) ++texts[toUpper(t.text)];
  for (const Title& t : titles) {
    if (!icontains(t.association, "_Definition")) continue;
    const auto it = texts.find(toUpper(t.association));
    const int all = it == texts.end() ? 0 : it->second;
    if (all - (iequals(t.text, t.association) ? 1 : 0) == 0)
      slot.add(closedFinding(t.text, t.position));
  }
}

void definitionHasData(const std::vector<Title>& titles, RowResult& slot) {
  slot.clear();
  Counts dataBases;
  for (const Title& t : titles)
    if (t.role == SectionRole::Data) ++dataBases[toUpper(baseName(t.text))];
  for (const Title& t : titles) {
    if (!icontains(t.text, "_Definition")) continue;
    const auto it = dataBases.find(toUpper(baseName(t.text)));
    const int all = it == dataBases.end() ? 0 : it->second;
    if (all - (t.role == SectionRole::Data ? 1 : 0) == 0)
      slot.add(closedFinding(t.text, t.position));
  }
}

void noAssociationOnHeaders(const std::vector<Title>& titles, RowResult& slot) {
  slot.clear();
  for (const Title& t : titles) {
    const bool applies = containsAnyOf(t.text, {"Version", "Well", "_Parameter", "_Definition"}) ||
                         isOneOf(t.name, {"Parameter", "Curve"});
    if (!applies || t.association.empty()) continue;
    slot.add(closedFinding(
        "~" + t.text +
            (t.association == " "
                 ? " section title has a illegal | delimiter"
                 : " section title has a illegal | delimiter AND an illegal association section "
                   "title."),
        t.position));
  }
}

void setOrder(const std::vector<Title>& titles, RowResult& slot) {
  slot.clear();
  const auto places = firstPlaces(titles);
  for (std::size_t k = 0; k < titles.size(); ++k) {
    const Title& data = titles[k];
    if (data.role != SectionRole::Data) continue;
    std::string definition = data.association;
    std::string parameter = std::string(baseName(data.text)) + "_Parameter";
    if (data.index != -1) parameter += "[" + toText(data.index) + "]";
    if (iequals(data.text, "ASCII")) {
      definition = "Curve";
      parameter = "Parameter";
    }
    const int defPos = positionOf(places, definition);
    const int paramPos = positionOf(places, parameter);
    const int dataPos = static_cast<int>(k);
    if (defPos == -1) {
      slot.add(closedFinding("Missing " + definition, data.position));
    } else if (paramPos != -1) {
      if (!(paramPos < defPos && defPos < dataPos))
        slot.add(closedFinding("Expected order: " + parameter + "/" + definition + "/" + data.text,
                               data.position));
    } else if (!(defPos < dataPos)) {
      slot.add(closedFinding("Expected order: " + definition + "/" + data.text, data.position));
    }
  }
}

void noIndexOnFixedSections(const std::vector<Title>& titles, RowResult& slot) {
  slot.clear();
  for (const Title& t : titles) {
    const std::string_view base = baseName(t.text);
    if (t.index != -1 && isOneOf(base, {"Version", "Well", "Curve", "Parameter", "ASCII"}))
      slot.add(closedFinding(std::string(base), t.position));
  }
}

// Groups of titles sharing a section name, in list order; a title joins only the first group in
// which it is met. `member` selects the titles that take part.
template <typename Pred>
std::vector<std::vector<std::size_t>> groupsByName(const std::vector<Title>& titles, Pred member) {
  return classesOf(titles, [&member](const Title& t, std::string& key) {
    if (!member(t) || t.name.empty()) return false;
    key = toUpper(t.name);
    return true;
  });
}

void identicalTitlesIndexed(const std::vector<Title>& titles, RowResult& slot) {
  slot.clear();
  std::unordered_set<std::string> listed;
  for (const auto& group : groupsByName(titles, [](const Title&) { return true; })) {
    if (group.size() < 2) continue;
    for (std::size_t i : group)
      if (titles[i].index == -1) appendOnce(slot, listed, titles[i]);
  }
}

void sequentialIndexes(const std::vector<Title>& titles, RowResult& slot) {
  slot.clear();
  for (const auto& group : groupsByName(titles, [](const Title& t) { return t.index != -1; })) {
    if (group.size() == 1) {
      if (titles[group[0]].index != 1)
        slot.add(closedFinding(titles[group[0]].text, titles[group[0]].position));
      continue;
    }
    std::vector<int> indexes;
    for (std::size_t i : group) indexes.push_back(titles[i].index);
    std::stable_sort(indexes.begin(), indexes.end());
    for (std::size_t k = 0; k < indexes.size(); ++k)
      if (indexes[k] != static_cast<int>(k + 1))
        slot.add(closedFinding(titles[group[0]].name, titles[group[0]].position));
  }
}

}  // namespace

CheckStatus checkSectionStructure(RunContext& run, Slots& slots) {
  try {
    const bool v3 = run.isV3();
    for (int k = 1; k <= 14; ++k) {
      slots[k].clear();
      if (v3 || k <= 3) slots[k].markNotReached();
    }

    if (run.sections.entries.empty() && !buildSectionIndex(run.source(), run.dialect, run.sections))
      return CheckStatus::Fault;
    const std::vector<Title> titles = titlesOf(run.sections.entries);

    if (!v3) {
      minimumSections2(titles, slots[1]);
      slots[3].clear();
      checkTitleLines2(run.source(), slots[3], &run.sections.tildeLines);
      duplicates2(titles, slots[2]);
    } else {
      minimumSections3(titles, run.sections, slots[1]);
      recognisedNames(titles, slots[2]);
      firstAndSecond(titles, slots[3]);
      duplicates3(titles, slots[4]);
      dataTitleDelimiter(titles, slots[5]);
      matchingAssociation(titles, slots[6]);
      definitionSuffix(titles, slots[7]);
      definitionExists(titles, slots[8]);
      definitionHasData(titles, slots[9]);
      noAssociationOnHeaders(titles, slots[10]);
      setOrder(titles, slots[11]);
      noIndexOnFixedSections(titles, slots[12]);
      identicalTitlesIndexed(titles, slots[13]);
      sequentialIndexes(titles, slots[14]);
    }
    for (int k = 1; k <= 14; ++k)
      if (!slots[k].passed()) return CheckStatus::Failed;
    return CheckStatus::Passed;
  } catch (const std::exception&) {
    return CheckStatus::Fault;
  }
}

}  // namespace zorvik
