// Made-up documents: see generate.h. The proportions are those of a kept inventory: notes from none to
// some lines, three to five field values a thing, links that form a hierarchy.
#include "generate.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <numeric>
#include <random>
#include <string_view>
#include <vector>

#include "document/document.h"
#include "document/writer.h"
#include "platform/file_handles.h"
#include "platform/files.h"
#include "platform/locale.h"

namespace {

constexpr std::array<std::string_view, 40> kFirstWords = {
    "Antique", "Big",    "Black", "Blue",  "Carved",  "Cracked",  "Deep",  "Dusty", "Early",  "Faded",
    "Folding", "Green",  "Grey",  "Heavy", "Inlaid",  "Japanese", "Keyed", "Large", "Light",  "Long",
    "Mended",  "Narrow", "New",   "Old",   "Plain",   "Quiet",    "Red",   "Round", "Rusty",  "Second",
    "Small",   "Spare",  "Tall",  "Upper", "Vaulted", "White",    "Wide",  "Worn",  "Yellow", "Zigzag"};
constexpr std::array<std::string_view, 24> kSecondWords = {
    "Oak",   "Pine",  "Brass", "Iron",   "Copper", "Glass",  "Garden", "Kitchen", "Attic", "Cellar", "Barn",  "Hall",
    "Study", "Field", "Boat",  "Winter", "Summer", "Travel", "Music",  "Wicker",  "Stone", "Linen",  "Paper", "Tin"};
constexpr std::array<std::string_view, 48> kThirdWords = {
    "Table",  "Chair",  "Lamp",  "Chest",  "Clock",  "Mirror", "Box",    "Rake",   "Saw",   "Plane",
    "Ladder", "Bench",  "Trunk", "Kettle", "Pan",    "Bowl",   "Radio",  "Stool",  "Shelf", "Frame",
    "Basket", "Rug",    "Rope",  "Oar",    "Hammer", "Vice",   "Barrow", "Hose",   "Spade", "Flute",
    "Drum",   "Fiddle", "Album", "Map",    "Ledger", "Letter", "Key",    "Bucket", "Stove", "Screen",
    "Globe",  "Vase",   "Jug",   "Plate",  "Quilt",  "Sofa",   "Desk",   "Cabinet"};
constexpr std::array<std::string_view, 56> kNoteWords = {
    "bought", "at",       "the",      "market", "in",        "spring",  "with",  "a",        "new",      "handle",
    "and",    "stands",   "behind",   "door",   "of",        "upper",   "room",  "needs",    "oil",      "before",
    "winter", "was",      "repaired", "by",     "neighbour", "left",    "foot",  "loose",    "spare",    "parts",
    "are",    "kept",     "drawer",   "below",  "two",       "coats",   "paint", "every",    "third",    "year",
    "label",  "inside",   "reads",    "number", "from",      "auction", "price", "includes", "delivery", "lent",
    "once",   "returned", "good",     "order",  "see",       "folder"};
constexpr std::array<std::string_view, 5> kConditions = {"good", "fair", "worn", "very good", "to be repaired"};
constexpr std::array<std::string_view, 6> kMakers = {"Hartley & Son", "Voss",           "Lindqvist",
                                                     "unknown",       "Brothers Amadi", "Caf\xE9 Supply Co."};

// Small numbers from a Mersenne twister, without the library's distributions, which differ among makers.
class Dice {
 public:
  explicit Dice(unsigned seed) : engine_(seed) {}
  int Below(int limit) { return static_cast<int>(engine_() % static_cast<std::uint32_t>(limit)); }
  int From(int lowest, int highest) { return lowest + Below(highest - lowest + 1); }
  bool Percent(int chance) { return Below(100) < chance; }
  template <class Words>
  std::string_view Pick(const Words& words) {
    return words[static_cast<std::size_t>(Below(static_cast<int>(words.size())))];
  }

 private:
  std::mt19937 engine_;
};

std::vector<std::string> MakeNames(int count, Dice& dice) {
  std::vector<std::string> names;
  for (const auto first : kFirstWords) {
    for (const auto second : kSecondWords) {
      for (const auto third : kThirdWords) {
        const char joint = dice.Percent(20) ? '_' : ' ';
        names.push_back(std::string(first) + ' ' + std::string(second) + joint + std::string(third));
      }
    }
  }
  for (std::size_t last = names.size() - 1; last > 0; --last) {
    std::swap(names[last], names[static_cast<std::size_t>(dice.Below(static_cast<int>(last) + 1))]);
  }
  names.resize(static_cast<std::size_t>(count));
  std::sort(names.begin(), names.end(),
            [](const std::string& one, const std::string& other) { return UpperCase(one) < UpperCase(other); });
  return names;
}

std::string MakeNote(Dice& dice) {
  if (dice.Percent(12)) return {};
  const auto length = static_cast<std::size_t>(dice.Percent(25) ? dice.From(500, 900) : dice.From(30, 360));
  std::string note;
  while (note.size() < length) {
    if (!note.empty()) note += dice.Percent(10) ? (dice.Percent(30) ? "; " : ". ") : " ";
    note += dice.Pick(kNoteWords);
  }
  return note + '.';
}

std::string MakeValue(int field, Dice& dice) {
  const auto decimals = [&](int whole, int step) {
    const std::string cents = std::to_string(100 + dice.Below(100 / step) * step);
    return std::to_string(whole) + '.' + cents.substr(1);
  };
  switch (field) {
    case 1:
      return decimals(dice.From(1, 4000), 5);
    case 2:
      return std::to_string(dice.From(1, 12));
    case 3:
      return std::to_string(dice.From(1, 28)) + '.' + std::to_string(dice.From(1, 12)) + '.' +
             std::to_string(dice.From(1960, 2024));
    case 4:
      return std::string(dice.Pick(kConditions));
    case 5:
      return std::to_string(dice.From(0, 20) * 5) + '%';
    case 6:
      return std::to_string(dice.From(0, 90)) + '.' + std::to_string(dice.From(1, 9));
    case 7:
      return std::string(dice.Pick(kMakers));
    default:
      return std::string(1, static_cast<char>('A' + dice.Below(26))) + std::to_string(dice.From(1, 40));
  }
}

void MakeValues(ThingRecord& thing, Dice& dice) {
  const auto& fields = TheDocument.Fields;
  int wanted = dice.From(3, 5);
  std::size_t slot = 0;
  for (int field = 1; field <= fields.Count(); ++field) {
    const int left = fields.Count() - field + 1;
    if (dice.Below(left) >= wanted) continue;
    --wanted;
    thing.Values[slot++].Text = fields[field].Keyword + ':' + MakeValue(field, dice);
  }
}

template <class Record>
void SetRecords(RecordTable<Record>& table, const std::vector<Record>& records) {
  const int count = static_cast<int>(records.size());
  table.GrowFor(count, 0);
  table.SetCount(count);
  for (int number = 1; number <= count; ++number)
    table.Writable(number) = records[static_cast<std::size_t>(number - 1)];
}

void MakeDefinitions() {
  int number = 0;
  for (const auto name : {"Furniture", "Tools", "Kitchen", "Garden", "", "Music", "Papers", "Valuables", "Insured"}) {
    TheDocument.CategoryNames.Writable(++number) = name;
  }
  TheDocument.CategoryNames.Writable(kCategories) = "On loan";
  SetRecords<FieldDefinition>(TheDocument.Fields, {{"PRICE", "Price paid for one", "DOLLAR"},
                                                   {"QTY", "How many", "INTEGER"},
                                                   {"BOUGHT", "When bought", ""},
                                                   {"CONDITION", "Condition", ""},
                                                   {"CHANCE", "Chance of selling it", "ODDS"},
                                                   {"WEIGHT", "Weight of one in kg", "DOUBLE"},
                                                   {"MAKER", "Maker", ""},
                                                   {"SHELF", "Shelf", ""}});
  SetRecords<FormulaDefinition>(TheDocument.Formulas,
                                {{"VALUE", "Price of all", "DOLLAR", "", "[PRICE]*[QTY]"},
                                 {"SALE", "Expected from a sale", "DOLLAR", "", "[PRICE]*[QTY]*[CHANCE]"},
                                 {"LOAD", "Weight of all", "DOUBLE", "#,##0.0", "[WEIGHT]*[QTY]"}});
}

std::int32_t MakeCategories(Dice& dice) {
  std::int32_t bits = 0;
  if (dice.Percent(3)) bits |= CategoryBit(kCategories);
  for (int more = dice.Below(4); more > 0; --more) {
    const int category = dice.From(1, 9);
    if (!TheDocument.CategoryNames[category].empty()) bits |= CategoryBit(category);
  }
  return bits;
}

// Links each thing to one or two that come before it in a shuffled order, so that there are no rings.
void MakeLinks(Dice& dice) {
  auto& things = TheDocument.Things;
  std::vector<std::int16_t> order(static_cast<std::size_t>(things.Count()));
  std::iota(order.begin(), order.end(), std::int16_t{1});
  for (std::size_t at = 1; at < order.size(); ++at) {
    std::swap(order[at], order[static_cast<std::size_t>(dice.Below(static_cast<int>(at) + 1))]);
  }
  for (std::size_t at = 1; at < order.size(); ++at) {
    const auto earlier = [&] { return order[static_cast<std::size_t>(dice.Below(static_cast<int>(at + 9) / 10))]; };
    if (dice.Percent(85)) things.Writable(order[at]).XREF1 = earlier();
    if (dice.Percent(25)) things.Writable(order[at]).XREF2 = earlier();
  }
}

// The columns that the foreign formats share: a thing's own members, then one a field.
std::vector<std::pair<std::string, std::string>> ColumnsOf(int record) {
  const ThingRecord& thing = TheDocument.Things[record];
  std::vector<std::pair<std::string, std::string>> columns = {{"NUMBER", std::to_string(record)},
                                                              {"NAME", thing.NAME},
                                                              {"NOTE", thing.NOTE},
                                                              {"PICFILENAME", thing.PICFILENAME},
                                                              {"XREF1", std::to_string(thing.XREF1)},
                                                              {"XREF2", std::to_string(thing.XREF2)},
                                                              {"CATBITMAP", std::to_string(thing.CATBITMAP)}};
  for (int field = 1; field <= TheDocument.Fields.Count(); ++field) {
    const std::string& keyword = TheDocument.Fields[field].Keyword;
    std::string value;
    for (const FieldValueSlot& slot : thing.Values) {
      if (slot.Keyword() == keyword) value = slot.Value();
    }
    columns.emplace_back(keyword, value);
  }
  return columns;
}

}  // namespace

void GenerateDocument(int things, unsigned seed) {
  Dice dice(seed);
  MakeNew();
  MakeDefinitions();
  const std::vector<std::string> names = MakeNames(things, dice);
  TheDocument.Things.GrowFor(things, 0);
  TheDocument.Things.SetCount(things);
  for (int record = 1; record <= things; ++record) {
    ThingRecord thing;
    thing.NAME = names[static_cast<std::size_t>(record - 1)];
    thing.NOTE = MakeNote(dice);
    if (dice.Percent(8)) thing.PICFILENAME = "photos\\" + std::to_string(record) + ".jpg";
    thing.CATBITMAP = MakeCategories(dice);
    MakeValues(thing, dice);
    TheDocument.Things.Writable(record) = std::move(thing);
  }
  MakeLinks(dice);
}

std::string DocumentAsRecFile() {
  std::string out = "%rec: Thing\n";
  for (int record = 1; record <= TheDocument.Things.Count(); ++record) {
    out += '\n';
    for (const auto& [column, value] : ColumnsOf(record)) {
      if (!value.empty() && value != "0") out += column + ": " + value + '\n';
    }
  }
  return out;
}

std::string DocumentAsCsv() {
  std::string out;
  for (int record = 0; record <= TheDocument.Things.Count(); ++record) {
    char separator = '\0';
    for (const auto& [column, value] : ColumnsOf(std::max(record, 1))) {
      if (separator != '\0') out += separator;
      separator = ',';
      out += '"';
      for (const char character : record == 0 ? column : value) out.append(character == '"' ? 2 : 1, character);
      out += '"';
    }
    out += '\n';
  }
  return out;
}
