/** Hands a file to the person, without a server. */
export function download(content: Blob | string, name: string, type: string): void {
  const blob = typeof content === "string" ? new Blob([content], { type }) : content;
  const address = URL.createObjectURL(blob);
  const link = document.createElement("a");
  link.href = address;
  link.download = name;
  document.body.append(link);
  link.click();
  link.remove();
  // The browser still reads the blob when the click returns.
  setTimeout(() => URL.revokeObjectURL(address), 60_000);
}
