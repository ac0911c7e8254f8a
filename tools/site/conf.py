"""How Sphinx builds the site."""

import os
import sys
from pathlib import Path

sys.path.insert(0, str(Path(__file__).parent))

project = "kelpower"
author = "the authors of kelpower"
release = version = (Path(os.environ["KELPOWER_REPOSITORY"]) / "VERSION").read_text().strip()
language = "en"

extensions = ["lines", "myst_parser", "sphinx_copybutton", "sphinx_design"]
myst_enable_extensions = ["colon_fence"]
myst_heading_anchors = 4
nitpicky = True
highlight_language = "none"  # blocks without a name are text
pygments_style = "a11y-high-contrast-light"
pygments_dark_style = "native"

html_theme = "furo"
html_title = f"kelpower {release}"
html_static_path = [os.environ["KELPOWER_REPOSITORY"] + "/tools/site/static"]
html_css_files = ["site.css"]
html_js_files = ["from_disk.js"]
html_copy_source = False
html_show_sphinx = False
html_show_copyright = False
html_theme_options = {
    "light_css_variables": {"color-brand-primary": "#0b5cad", "color-brand-content": "#0b5cad"},
    "dark_css_variables": {"color-brand-primary": "#7db7f0", "color-brand-content": "#7db7f0"},
}
html_extra_path = [os.environ["KELPOWER_EXTRA"]] if "KELPOWER_EXTRA" in os.environ else []

# What is typed is copied, without prompts and without what is printed.
copybutton_prompt_text = r"\$ |>>> |\.\.\. "
copybutton_prompt_is_regexp = True
