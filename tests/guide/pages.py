"""Reads pages of the guide with pandoc, as they are rendered."""
import json
import subprocess


def tree(page):
    """The blocks of a page."""
    return json.loads(subprocess.run(["pandoc", "-f", "gfm-smart", "-t", "json", page], check=True,
                                     capture_output=True, text=True).stdout)["blocks"]


def nodes(node, kind):
    """The contents of every node of that kind."""
    if isinstance(node, dict):
        if node.get("t") == kind:
            yield node["c"]
        node = node.get("c", [])
    if isinstance(node, list):
        for child in node:
            yield from nodes(child, kind)


def words(node):
    """The text of a piece of the tree."""
    if isinstance(node, list):
        return "".join(map(words, node))
    if not isinstance(node, dict):
        return ""
    if node.get("t") in ("Str", "Code"):
        return node["c"] if node["t"] == "Str" else node["c"][1]
    return " " if node.get("t") in ("Space", "SoftBreak") else words(node.get("c", []))


def blocks(page):
    """The blocks of code, each with its language; an indented one has none."""
    for (_, classes, _), text in nodes(tree(page), "CodeBlock"):
        yield (classes or [""])[0], text
