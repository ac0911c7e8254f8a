/** The script of the worker. */
declare const source: string;
export default source;
