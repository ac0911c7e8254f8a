// Sphinx fetches pages to show pieces of them among what a search found. From the disk a browser allows no fetching.
if (location.protocol === "file:") DOCUMENTATION_OPTIONS.SHOW_SEARCH_SUMMARY = false;
