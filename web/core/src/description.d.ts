/** What kelplan_describe tells, as the build asked the module. */
declare const description: string;
export default description;
