"""The pages that mkdocs makes the site of: the repository's own, and one for each operation with all its families.

usage: pages.py REPOSITORY FAMILIES.json PICTURES PERFORMANCE.csv OUT

The repository's pages keep their places, so their links hold. What is told of a family comes from the grid
(`grid_outputs json`) and from the rows about it in docs/accuracy.md, docs/performance.md and docs/differences.md; the
times of all widths from the benchmark's CSV, if it is there.
"""
import csv
import json
import re
import shutil
import sys
from pathlib import Path

repository, families_file, pictures, times_file, out = map(Path, sys.argv[1:])

INTEGERS = {"i32": "int", "u32": "uint", "i64": "long", "u64": "ulong"}


def page_of(family):
    """The page's file name and title. The conversions of one integer type share a page for each direction."""
    conversion = re.match(r"cvt(fpto)?([iu]\d\d)(tofp)?", family["base"])
    if not conversion:
        return family["base"], family["base"]
    integer = INTEGERS[conversion[2]]
    return conversion[0], f"floating to {integer}" if conversion[1] else f"{integer} to floating"


def rows_of(page):
    """The rows of a page's tables by the family in their first cell, each with its table's head. Rows whose first
    cell is empty belong to the one above."""
    rows, family, head = {}, None, []
    for line in (repository / "docs" / page).read_text().splitlines():
        if not line.startswith("|"):
            family, head = None, []
        elif len(head) < 2:
            head.append(line)
        else:
            if named := re.match(r"\| `(\w+)` \|", line):
                family = named[1]
            rows.setdefault(family, []).append((tuple(head), line))
    return rows


def table(rows):
    """Rows of a family without their first cell, which names it."""
    lines, last = [], None
    for head, line in rows:
        if head != last:
            lines += ["", *head]
        lines.append(line)
        last = head
    return "\n".join(re.sub(r"^\|[^|]*\|", "|", line) for line in lines) + "\n"


def times_by_family():
    if not times_file.is_file():
        return {}
    times = {}
    with times_file.open() as file:
        for row in csv.DictReader(file):
            times.setdefault(row["family"], []).append(row)
    return times


PEERS = {"c": "C", "fastest_sleef": "SLEEF", "xsimd": "xsimd", "accurate": "accurate class", "floor": "floor"}


def times_table(rows):
    """Nanoseconds for a vector, and the others' times over ours, for each width and set of operands."""
    columns = [column for column in PEERS if any(row.get(column) for row in rows)]
    lines = ["| lanes | operands | ns | " + " | ".join(PEERS[c] for c in columns) + " |",
             "|--:|---|--:|" + "--:|" * len(columns)]
    for row in rows:
        cells = [row["width"], row["operands"].replace("_", " "), row["nanoseconds"]] + [row[c] for c in columns]
        lines.append("| " + " | ".join(cells) + " |")
    return "\n".join(lines) + "\n"


def section(family, accuracy, performance, differences, times):
    name = family["name"]
    # As one writes them: without the header's reserved names.
    reserved = r"__ocl_zorv_v8_((?:float|double|u?int|u?long)\d*(?:_pair)?\b)|\b__(?!ocl_)([a-z]\w*)"
    declarations = re.sub(reserved, r"\1\2", "\n".join(family["declarations"]))
    text = f"""
## `{name}` {{ #{name} }}

{family["what"]}, for `{family["lane"]}`, {family["class"]} class. {family["lanes"]}

- **Built-in:** {family["builtin"] or "none; it is called by its own name"}
- **Range and special values:** {family["special"].replace("+-", "±")}
- **{family["error"].replace(": ", ":** ", 1)}
- **Method:** {family["method"].replace("+-", "±")}

```c
{declarations}
```
"""
    if name in differences:
        text += "\n**Not as the built-in** ([all such results](../docs/differences.md)):\n" + table(differences[name])
    if name in accuracy:
        text += "\n**Error as measured**, range by range, with the operand where it is largest " \
                "([how](../docs/accuracy.md)):\n" + table(accuracy[name])
    picture = f"accuracy-{name}.svg"
    if (pictures / picture).is_file():
        text += f"\n[![Errors of random operands of {name}, and the bound](pictures/{picture}){{ loading=lazy }}]" \
                f"(pictures/{picture})\n"
    if name in times:
        text += "\n**Speed**: nanoseconds for a vector, and how many times as long the others take " \
                "([how](../docs/performance.md)):\n\n" + times_table(times[name])
    elif name in performance:
        rows = [row for row in performance[name] if "floor" in row[0][0]]
        text += "\n**Speed**: how many times as long the others take ([how](../docs/performance.md)):\n" + table(rows)
    return text


def write_operations(families):
    """families/<page>.md; returns the navigation, and where each family and operation is told of."""
    tables = [rows_of(page) for page in ("accuracy.md", "performance.md", "differences.md")]
    times = times_by_family()
    groups, places, pages = {}, {}, {}
    for family in families:
        pages.setdefault((family["group"], *page_of(family)), []).append(family)
    (out / "families").mkdir()
    shutil.copytree(pictures, out / "families" / "pictures")
    for (group, file, title), members in pages.items():
        what = members[0]["what"] if title == file else "Conversions, rounded and saturated as the name says"
        text = f"# {title}\n\n{what}.\n\n| family | lanes | class | built-in | error, ulp |\n|---|---|---|---|---|\n"
        for family in members:
            name = family["name"]
            places[name] = f"{file}.md#{name}"
            cells = [f"[`{name}`](#{name})"] + [family[key] for key in ("lane", "class", "builtin", "bound")]
            text += "| " + " | ".join(cells) + " |\n"
        text += "".join(section(family, *tables, times) for family in members)
        (out / "families" / f"{file}.md").write_text(text)
        groups.setdefault(group, []).append({title: f"families/{file}.md"})
    return [{group: entries} for group, entries in groups.items()], places


def copy_pages(places):
    """The repository's pages and the files that they link to; families in the first cells of tables become links."""
    for page in [repository / "README.md", repository / "CONTRIBUTING.md",
                 *(repository / name for name in ("CHANGELOG.md", "SECURITY.md")),
                 *sorted(repository.glob("docs/*.md"))]:
        text = page.read_text()
        for link in re.findall(r"\]\(([^):# ]+)[^) ]*\)", text):
            source = page.parent / link
            target = out / source.resolve().relative_to(repository.resolve())
            if source.is_file() and source.suffix != ".md" and not target.exists():
                target.parent.mkdir(parents=True, exist_ok=True)
                shutil.copy(source, target)
        families = "families" if page.parent == repository else "../families"

        def link(name):
            return f"[{name[0]}]({families}/{places[name[1]]})" if name[1] in places else name[0]

        text = re.sub(r"^\| `[^|]*\|", lambda cell: re.sub(r"`(\w+)`", link, cell[0]), text, flags=re.MULTILINE)
        target = out / page.relative_to(repository)
        target.parent.mkdir(parents=True, exist_ok=True)
        target.write_text(text)


def main():
    shutil.rmtree(out, ignore_errors=True)
    out.mkdir(parents=True)
    operations, places = write_operations(json.loads(families_file.read_text()))
    copy_pages(places)
    navigation = [
        {"Overview": "README.md"},
        {"Families": [{"All": "docs/families.md"}, *operations]},
        {"Use": [{"Calling convention": "docs/calling-convention.md"}, {"Under a run-time": "docs/runtime.md"},
                 {"Differences": "docs/differences.md"}, {"Compilers": "docs/compilers.md"},
                 {"Changes and versions": "CHANGELOG.md"}, {"Security": "SECURITY.md"}]},
        {"Measured": [{"Accuracy": "docs/accuracy.md"}, {"Performance": "docs/performance.md"},
                      {"Both targets": "docs/targets.md"}]},
        {"Inside": [{"Architecture": "docs/architecture.md"}, {"Contributing": "CONTRIBUTING.md"}]},
    ]
    shutil.copy(repository / "docs/site/tables.css", out)
    configuration = {"INHERIT": str(repository.resolve() / "docs/site/mkdocs.yml"), "docs_dir": str(out.resolve()),
                     "nav": navigation}
    # JSON is YAML.
    out.with_suffix(".yml").write_text(json.dumps(configuration, indent=1))


main()
